# The scenario runner (tests/scenarios/*.scn), built at build/autojobverw-scenario.
add_executable(autojobverw-scenario ${CMAKE_CURRENT_SOURCE_DIR}/ScenarioMain.cpp)
target_link_libraries(autojobverw-scenario PRIVATE ajv_scenario ajv_gui ajv_system ajv_headless
  ajv_suite Qt6::Widgets)
set_target_properties(autojobverw-scenario PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
