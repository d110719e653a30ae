// The system library is built from the subsystem folders named in this folder's CMake file.
