#include "suite/CoreTexte.h"

#include "common/ErrorExit.h"
#include "suite/CoreStandIns.h"

QString SuiteCoreTexte::GetText(const QVariant& textId) {
    ErrorExit ex(QStringLiteral("GetText"), QStringLiteral("CoreTexteClass"));
    try {
        const long id = SuiteCoreConvert().ToLong(textId);
        auto oTL = ex.create(services().newRecordset, QStringLiteral("hdata.dll"),
                             QStringLiteral("Set oTL = New hdata.CRecordset"));
        oTL->Connect();
        QString text;
        if (oTL->OpenQuery(
                QStringLiteral("select Text from tSuiteText where TextId = ") + QString::number(id),
                0) >= 1) {
            text = oTL->ReadText(QStringLiteral("Text"));
        }
        oTL->Close();
        oTL->Disconnect();
        return text;
    } catch (...) {
        raiseOn(ex);
    }
}

void SuiteCoreTexte::SetFormIcon(PictureTarget& window, long pictureId) {
    window.setIconPicture(pictureId);
}

void SuiteCoreTexte::GetBilder(PictureTarget& bar, const QList<QPair<QString, long>>& tools) {
    for (const auto& [tool, pictureId] : tools) {
        bar.setToolPicture(tool, pictureId);
    }
}
