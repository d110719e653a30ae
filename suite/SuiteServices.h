#pragma once

#include <memory>

#include "common/Services.h"
#include "suite/Database.h"
#include "suite/SuiteConfig.h"

// A registry filled with the suite's stand-ins: record sets on db, the core library, trace,
// staff and client objects. They all read the one configuration at each call, so a change
// made to it later (a path, the kind of installation) is seen at once. db may be null: record
// sets then cannot be created.
Services makeSuiteServices(std::shared_ptr<SuiteConfig> config, std::shared_ptr<Database> db,
                           std::shared_ptr<PlatformUi> ui, std::shared_ptr<IClock> clock);

// The database the configuration names, its folder created; a database without tables gets
// the schema and the demo data. Throws RaisedError on failure.
std::shared_ptr<Database> openSuiteDatabase(const SuiteConfig& config,
                                            std::shared_ptr<IClock> clock);
