// A scenario file: every line is split into its words and every argument read in each way a
// command may read it; a bad line is the runner's error, never more.
#include <cstddef>
#include <cstdint>

#include "scenario/ScenarioCommand.h"
#include "scenario/ScenarioError.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    int number = 0;
    for (const QString& line : text.split(u'\n')) {
        ++number;
        try {
            const QList<Token> tokens = tokenizeLine(line);
            if (tokens.isEmpty()) {
                continue;
            }
            const ScenarioCommand command(number, tokens);
            (void)command.display();
            for (int i = 0; i < command.argCount(); ++i) {
                const auto attempt = [](auto&& read) {
                    try {
                        read();
                    } catch (const ScenarioError&) {
                    }
                };
                attempt([&] { (void)command.text(i); });
                attempt([&] { (void)command.integer(i); });
                attempt([&] { (void)command.value(i); });
                attempt([&] {
                    for (const PathPart& part : command.path(i)) {
                        (void)part.display();
                        if (part.args) {
                            for (const PathArg& a : *part.args) {
                                attempt([&] { (void)a.number(); });
                            }
                        }
                    }
                });
            }
        } catch (const ScenarioError&) {
        }
    }
    return 0;
}
