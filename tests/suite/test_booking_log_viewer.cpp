// The stand-in of the suite's booking log viewer.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "common/Services.h"
#include "suite/BookingLogViewerStandIn.h"

namespace {

struct Anzeige : BookingLogDisplay {
    std::vector<BookingLogView> views;
    void show(const BookingLogView& view) override { views.push_back(view); }
};

TEST(BookingLogViewer, ShowsTheFileItWasGivenInTheDisplayAskedFor) {
    QTemporaryDir dir;
    const QString datei = dir.filePath("a.mta");
    QFile f(datei);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(
        "Zeile 1\nGr\xfc\xdf"
        "e\n");
    f.close();

    Services s;
    auto anzeige = std::make_shared<Anzeige>();
    s.bookingLogDisplay = anzeige;
    ScopedServices scope(std::move(s));

    SuiteBookingLogViewer viewer;
    viewer.SetWirtschaftsjahr(7);
    viewer.SetMitarbeiter(3);
    viewer.SetModus(0);
    viewer.SetDateiname(datei);
    viewer.ShowBuchungen();
    viewer.SetDateiname(dir.filePath("fehlt.mta"));
    viewer.ShowStatus();

    ASSERT_EQ(anzeige->views.size(), 2u);
    const BookingLogView& a = anzeige->views[0];
    EXPECT_EQ(a.datei, datei);
    EXPECT_EQ(a.wirtschaftsjahr, 7);
    EXPECT_EQ(a.mitarbeiter, 3);
    EXPECT_TRUE(a.buchungen);
    EXPECT_TRUE(a.gefunden);
    // Not UTF-8: read in the Windows code page.
    EXPECT_EQ(a.text, QString::fromUtf8("Zeile 1\nGrüße\n"));
    const BookingLogView& b = anzeige->views[1];
    EXPECT_FALSE(b.buchungen);
    EXPECT_FALSE(b.gefunden);
    EXPECT_EQ(b.text, "");
}

}  // namespace
