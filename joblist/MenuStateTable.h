#pragma once

#include <QString>
#include <array>

#include "joblist/ListTools.h"

// Where the state of a list command is kept: the browser's bar, its menu, or a band of the
// list window's hidden bar (which the host's menu follows).
enum class ToolOrt { Tools, Menu, Band };

// What a state does to a tool.
enum class ToolZiel {
    An,
    Aus,
    Bleibt,             // left as it is
    NachAuswahl,        // on with one selected job, off with several
    AnDannNachAuswahl,  // first on with the others, then by the selection
    Einfuegen,          // on while a job is remembered for pasting
};

// One row of the list's command states: A no records, B properties window open, C the list
// alone. The rows stand in the order in which the states are set.
struct ToolZustand {
    ToolOrt ort;
    QString band;
    QString tool;
    ToolZiel a;
    ToolZiel b;
    ToolZiel c;
};

inline const std::array<ToolZustand, 17>& toolZustaende() {
    using enum ToolZiel;
    static const std::array<ToolZustand, 17> tabelle{{
        {ToolOrt::Tools, {}, ListTool::Neu, An, Aus, An},
        {ToolOrt::Tools, {}, ListTool::Bearbeiten, Aus, Bleibt, NachAuswahl},
        {ToolOrt::Tools, {}, ListTool::Loeschen, Aus, Aus, An},
        {ToolOrt::Tools, {}, ListTool::Kopieren, Aus, Aus, AnDannNachAuswahl},
        {ToolOrt::Tools, {}, ListTool::Einfuegen, Aus, Aus, Einfuegen},
        {ToolOrt::Menu, {}, ListTool::Verlauf, Aus, Aus, AnDannNachAuswahl},
        {ToolOrt::Menu, {}, ListTool::Ausfuehren, Aus, Aus, AnDannNachAuswahl},
        {ToolOrt::Menu, {}, ListTool::AktivUmschalten, Aus, Aus, An},
        {ToolOrt::Band, MenuBand::Bearbeiten, ListTool::Neu, An, Aus, An},
        {ToolOrt::Band, MenuBand::Bearbeiten, ListTool::Bearbeiten, Aus, Bleibt, NachAuswahl},
        {ToolOrt::Band, MenuBand::Bearbeiten, ListTool::Loeschen, Aus, Aus, An},
        {ToolOrt::Band, MenuBand::Bearbeiten, ListTool::Kopieren, Aus, Aus, AnDannNachAuswahl},
        {ToolOrt::Band, MenuBand::Bearbeiten, ListTool::Einfuegen, Aus, Aus, Einfuegen},
        {ToolOrt::Band, MenuBand::Bearbeiten, ListTool::Ausfuehren, Aus, Aus, AnDannNachAuswahl},
        {ToolOrt::Band, MenuBand::Bearbeiten, ListTool::AktivUmschalten, Aus, Aus, An},
        {ToolOrt::Band, MenuBand::Bearbeiten, ListTool::Verlauf, Aus, Bleibt, Bleibt},
        {ToolOrt::Band, MenuBand::Ansicht, ListTool::Verlauf, Aus, Aus, An},
    }};
    return tabelle;
}
