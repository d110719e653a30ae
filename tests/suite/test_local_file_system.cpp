// Log directories as the agent may leave them: empty, crowded, or links that lead nowhere.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "suite/LocalFileSystem.h"

TEST(LocalFileSystem, EmptyAndCrowdedFoldersListTheirFilesSortedByName) {
    QTemporaryDir dir;
    LocalFileSystem fs;
    EXPECT_TRUE(fs.FolderExists(dir.path()));
    EXPECT_EQ(fs.Files(dir.path()), QStringList());

    for (int i = 2000; i >= 1; --i) {
        QFile f(dir.filePath(QStringLiteral("KUND%1.XLS").arg(i, 4, 10, QLatin1Char('0'))));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    }
    QDir().mkdir(dir.filePath(QStringLiteral("Unterordner.Log")));
    const QStringList files = fs.Files(dir.path());
    ASSERT_EQ(files.size(), 2000);
    EXPECT_EQ(files.first(), QStringLiteral("KUND0001.XLS"));
    EXPECT_EQ(files.last(), QStringLiteral("KUND2000.XLS"));
}

TEST(LocalFileSystem, LinksToThemselvesAreNeitherFoldersNorFiles) {
    QTemporaryDir dir;
    LocalFileSystem fs;
    const QString folderLoop = dir.filePath(QStringLiteral("Schleife"));
    ASSERT_TRUE(QFile::link(folderLoop, folderLoop));
    const QString fileLoop = dir.filePath(QStringLiteral("Buchungen.Log"));
    ASSERT_TRUE(QFile::link(fileLoop, fileLoop));

    EXPECT_FALSE(fs.FolderExists(folderLoop));
    EXPECT_EQ(fs.Files(folderLoop), QStringList());
    EXPECT_FALSE(fs.FileExists(fileLoop));
    // The folder that holds the loops lists no file: they lead nowhere.
    EXPECT_EQ(fs.Files(dir.path()), QStringList());
}

TEST(LocalFileSystem, AFolderThatIsGoneIsNoFolderAndHasNoFiles) {
    LocalFileSystem fs;
    const QString gone = QStringLiteral("/nicht/vorhanden/AutoImport");
    EXPECT_FALSE(fs.FolderExists(gone));
    EXPECT_EQ(fs.Files(gone), QStringList());
    EXPECT_EQ(fs.FileSize(gone + QStringLiteral("/a.Log")), 0);
}
