#pragma once

class QFileDialog;
class QString;

// The program's file dialogs are Qt's own, never the desktop's, and they tell files apart by
// their names only. Qt's and the desktop's dialogs open each file they list to guess its type
// and icon from its first bytes; closing that descriptor drops every lock SQLite holds on the
// file (POSIX locks belong to the process), and a folder that holds the database would leave
// it unguarded against the agent service.
namespace QtFileDialog {

void keepListedFilesClosed(QFileDialog& dialog);

// Runs the dialog: the file or folder chosen, or an empty text when the user cancels.
QString chooseFile(QFileDialog& dialog);

// Runs a dialog that chooses a file to write: the chosen file, or an empty text when the user
// cancels. A file that is there already is replaced only after the program's own question in
// German; a file of the open database is handed back without that question, since the caller
// refuses it anyway.
QString chooseFileToWrite(QFileDialog& dialog);

}  // namespace QtFileDialog
