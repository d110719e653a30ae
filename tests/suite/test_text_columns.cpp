// An empty text written through the record set is stored as the empty text, in every text
// column of the tables the program and the agent share: the agent and the reports that join
// or compare these columns tell an empty text from NULL.
#include <gtest/gtest.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>

#include "suite/Database.h"

namespace {

const QDateTime kNow(QDate(2026, 11, 22), QTime(10, 0, 0));

class TextColumns : public ::testing::Test {
  protected:
    void SetUp() override {
        db = Database::open(QStringLiteral(":memory:"), std::make_shared<FixedClock>(kNow));
        db->applySchema();
    }

    QSqlQuery query(const QString& sql) {
        QSqlQuery q(QSqlDatabase::database(db->connectionName(), false));
        EXPECT_TRUE(q.exec(sql)) << sql.toStdString();
        return q;
    }

    // The columns declared as text (CHAR, VARCHAR, TEXT) and the key of the table.
    QStringList textColumns(const QString& table, QString& key) {
        QStringList columns;
        QSqlQuery q = query(QStringLiteral("PRAGMA table_info(%1)").arg(table));
        while (q.next()) {
            const QString type = q.value(2).toString().toUpper();
            if (q.value(5).toInt() == 1) {
                key = q.value(1).toString();
            } else if (type.contains(QLatin1String("CHAR")) ||
                       type.contains(QLatin1String("TEXT"))) {
                columns << q.value(1).toString();
            }
        }
        return columns;
    }

    // A new row with every text column written as an empty text of the given kind; gives the
    // columns that were stored as NULL.
    QStringList nullsAfterWriting(const QString& table, const QString& empty) {
        QString key;
        const QStringList columns = textColumns(table, key);
        EXPECT_FALSE(columns.isEmpty()) << table.toStdString();
        auto rs = db->recordsetFactory()();
        rs->Connect();
        EXPECT_EQ(rs->OpenQuery(QStringLiteral("select * from %1 where %2 = -1").arg(table, key)),
                  0);
        rs->AddNew();
        for (const QString& column : columns) {
            rs->WriteText(column, empty);
        }
        rs->Update(CRecordset::UpdateWrite, true);
        rs->Close();
        rs->Disconnect();

        QStringList nulls;
        for (const QString& column : columns) {
            QSqlQuery q = query(
                QStringLiteral("SELECT count(*) FROM %1 WHERE [%2] IS NULL").arg(table, column));
            if (q.next() && q.value(0).toInt() != 0) {
                nulls << column;
            }
        }
        return nulls;
    }

    std::shared_ptr<Database> db;
};

const QStringList kTabellen{QStringLiteral("tAutoJobJob"), QStringLiteral("tAutoJobSchedule"),
                            QStringLiteral("tAutoJobVerlauf"),
                            QStringLiteral("SYS_JobAgentLogDaten")};

TEST_F(TextColumns, ANullTextIsStoredAsTheEmptyTextInEveryTextColumn) {
    for (const QString& table : kTabellen) {
        EXPECT_EQ(nullsAfterWriting(table, QString()), QStringList()) << table.toStdString();
    }
}

TEST_F(TextColumns, AnEmptyTextIsStoredAsTheEmptyTextInEveryTextColumn) {
    for (const QString& table : kTabellen) {
        EXPECT_EQ(nullsAfterWriting(table, QStringLiteral("")), QStringList())
            << table.toStdString();
    }
}

TEST_F(TextColumns, TheEmptyTextOverwritesAStoredText) {
    query(QStringLiteral("INSERT INTO tAutoJobJob (Name, Zusatzinfo) VALUES ('Job', '7')"));
    auto rs = db->recordsetFactory()();
    rs->Connect();
    ASSERT_EQ(rs->OpenQuery(QStringLiteral("select * from tAutoJobJob where idAutoJob = 1")), 1);
    rs->WriteText(QStringLiteral("Zusatzinfo"), QString());
    // Read back before the update, the buffer already holds the empty text.
    EXPECT_EQ(rs->ReadValue(QStringLiteral("Zusatzinfo")).typeId(), QMetaType::QString);
    EXPECT_FALSE(rs->ReadValue(QStringLiteral("Zusatzinfo")).toString().isNull());
    rs->Update(CRecordset::UpdateWrite, true);
    rs->Close();
    QSqlQuery q = query(QStringLiteral("SELECT typeof(Zusatzinfo) FROM tAutoJobJob"));
    ASSERT_TRUE(q.next());
    EXPECT_EQ(q.value(0).toString(), QStringLiteral("text"));
}

}  // namespace
