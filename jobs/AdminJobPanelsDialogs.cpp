// Choosing the directories and the mapping file of the job editor through its dialogs.
#include <algorithm>

#include "app/cAdminJob.h"
#include "common/ErrorExit.h"
#include "ui/windows/frmEigenschaften.h"

void cAdminJob::mShowFileSystemPfad(int Index) {
    withErrorExit(QStringLiteral("mShowFileSystemPfad"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        ITextBox& txtPfad = mofrmEigenschaften->txtTextBox(Index);
        const QString sStart = txtPfad.Text().isEmpty() ? msStandardPfad : txtPfad.Text();
        const std::optional<QString> sGewaehlt =
            mofrmEigenschaften->ctlDirDialog().ShowDir(QString(), sStart);
        if (sGewaehlt) {
            txtPfad.setText(*sGewaehlt);
        }
        return 0;
    });
}

void cAdminJob::mMappingDateiAuswaehlen() {
    withErrorExit(QStringLiteral("mMappingDateiAuswaehlen"), kKlasse, 0, [&](ErrorExit&) {
        if (!mofrmEigenschaften) {
            return 0;
        }
        frmEigenschaften& f = *mofrmEigenschaften;
        QString sPfad = f.txtTextBox(frmEigenschaften::Txt::Importdaten).Text();
        if (sPfad.isEmpty()) {
            sPfad = msStandardPfad;
        }
        FileDialogSettings settings;
        settings.initialDirectory = sPfad;
        settings.mustExist = true;
        if (!f.ctlFremdMapping().Text().isEmpty()) {
            settings.fileName = f.ctlFremdMapping().Text();
        }
        settings.title = QStringLiteral("Mappingdatei auswählen");
        const std::optional<QString> sDatei = f.ctlCommonDialog().ShowOpen(settings);
        if (sDatei && !sDatei->isEmpty()) {
            // The mapping file lies in the import directory: only its name is kept.
            const qsizetype iTrenner = std::max(sDatei->lastIndexOf(QLatin1Char('/')),
                                                sDatei->lastIndexOf(QLatin1Char('\\')));
            f.ctlFremdMapping().setText(sDatei->mid(iTrenner + 1));
        }
        return 0;
    });
}
