#include "suite/BookingLogViewerStandIn.h"

#include <QFile>

#include "common/DatabaseFiles.h"
#include "common/Services.h"

namespace {

constexpr qint64 kHoechstens = 1024 * 1024;

QString alsText(const QByteArray& bytes) {
    const QString utf8 = QString::fromUtf8(bytes);
    // The suite writes its logs in the Windows code page; what is no valid UTF-8 is read so.
    return utf8.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(bytes) : utf8;
}

}  // namespace

BookingLogView SuiteBookingLogViewer::makeView(BookingLogView view, bool buchungen) {
    view.buchungen = buchungen;
    view.gefunden = false;
    view.text.clear();
    if (DatabaseFiles::isDatabaseFile(view.datei)) {
        view.text = DatabaseFiles::refusal(view.datei);
        return view;
    }
    QFile file(view.datei);
    if (!view.datei.isEmpty() && file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.read(kHoechstens);
        view.gefunden = true;
        view.text = alsText(bytes);
        if (!file.atEnd()) {
            view.text += QStringLiteral("\n…");
        }
    }
    return view;
}

void SuiteBookingLogViewer::show(bool buchungen) {
    const BookingLogView view = makeView(view_, buchungen);
    if (const auto display = services().bookingLogDisplay) {
        display->show(view);
    }
}
