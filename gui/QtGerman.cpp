#include "gui/QtGerman.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

void useGermanEverywhere() {
    const QLocale german(QLocale::German, QLocale::Germany);
    QLocale::setDefault(german);
    // Without the translations installed (scripts/setup and the package bring them) Qt's
    // texts stay English; the program's own texts are German anyway.
    auto* qtTexts = new QTranslator(QCoreApplication::instance());
    if (qtTexts->load(german, QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(qtTexts);
    } else {
        delete qtTexts;
    }
}
