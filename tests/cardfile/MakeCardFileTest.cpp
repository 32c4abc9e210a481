// SPDX-License-Identifier: MIT
#include "cardfile/MakeCardFile.h"
#include "frame/Session.h"
#include "tests/support/CardFiles.h"
#include "tests/support/TestDatabase.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace velmora;
using namespace velmora::test;

namespace {

class MakeCardFileTest : public testing::Test {
 protected:
  void TearDown() override { Global() = Session(); }

  /// The number of the engine's failure; 0 when the file is made.
  int Make(const ACardFile& file) {
    return ErrorNumberOf([&] { MakeCardFile(m_path, file.Design()); });
  }

  QTemporaryDir m_dir;
  QString m_path = m_dir.filePath(u"new file.ddb"_s);
};

}  // namespace

TEST_F(MakeCardFileTest, MakeCardFile_FieldOnPage3Alone_HasNoRowsForPages1And2) {
  const CardFile file = ACardFile().With(TextField(u"City"_s), 3).Titled(1, u"Empty"_s).Make();
  EXPECT_EQ(file.Rows(u"Location"_s), QStringList({u"Name|0|0"_s, u"Null|3|1"_s, u"City|3|2"_s}));
}

TEST_F(MakeCardFileTest, MakeCardFile_Pages1And3_LeaveAGap) {
  const CardFile file = ACardFile()
                            .With(TextField(u"City"_s), 1)
                            .With(DateField(u"Due"_s), 3)
                            .Titled(1, u"Address"_s)
                            .Titled(3, u" Dates "_s)
                            .Make();
  EXPECT_EQ(file.Rows(u"Location"_s),
            QStringList({u"Name|0|0"_s, u"Address|1|1"_s, u"Dates|3|1"_s, u"City|1|2"_s, u"Due|3|5"_s}));
}

TEST_F(MakeCardFileTest, MakeCardFile_PageWithoutTitle_HasANullName) {
  const CardFile file = ACardFile().With(TextField(u"City"_s)).Titled(1, u"  "_s).Make();
  EXPECT_EQ(file.Rows(u"Location"_s), QStringList({u"Name|0|0"_s, u"Null|1|1"_s, u"City|1|2"_s}));
}

TEST_F(MakeCardFileTest, MakeCardFile_AllPageRows_StandBeforeAllFieldRows) {
  const CardFile file = ACardFile()
                            .Named(u" Customer "_s)
                            .With(NumberField(u"B"_s), 1)
                            .With(TextField(u" A "_s), 1)
                            .With(YesNoField(u"C"_s), 2)
                            .Titled(2, u"Two"_s)
                            .Make();
  EXPECT_EQ(file.Rows(u"Location"_s), QStringList({u"Customer|0|0"_s, u"Null|1|1"_s, u"Two|2|1"_s, u"B|1|3"_s,
                                                   u"A|1|2"_s, u"C|2|4"_s}));
}

TEST_F(MakeCardFileTest, MakeCardFile_NewFile_HasRowsInTwoTablesAlone) {
  const CardFile file =
      ACardFile().With(TextField(u"City"_s)).With(DateField(u"Due"_s)).With(DateField(u"Birth"_s)).Make();
  for (const QString& table : file.Database().TableDefs()) {
    const bool hasRows = table == u"Location"_s || table == u"SupportRemainder"_s;
    EXPECT_EQ(file.Database().OpenRecordset(table).AtEnd(), !hasRows) << table.toStdString();
  }
  EXPECT_EQ(file.Rows(u"SupportRemainder"_s), QStringList({u"Due"_s, u"Birth"_s}));
}

TEST_F(MakeCardFileTest, MakeCardFile_NoDateField_HasNoReminderColumns) {
  const CardFile file = ACardFile().With(TextField(u"City"_s)).Make();
  EXPECT_EQ(file.Rows(u"SupportRemainder"_s), QStringList());
  EXPECT_EQ(file.Database().TableDefOf(u"TableDatesRemainder").Fields.size(), 1U);
}

TEST_F(MakeCardFileTest, MakeCardFile_DateFieldXAndFieldAgents_AreUnrelated) {
  const CardFile file =
      ACardFile().With(TextField(u"Agents"_s)).With(DateField(u"X"_s)).With(TextField(u"XAgents"_s)).Make();
  EXPECT_TRUE(file.Database().HasTable(u"AgentsT"));
  EXPECT_TRUE(file.Database().HasTable(u"XAgentsT"));
  EXPECT_NE(file.Database().TableDefOf(u"TableDatesRemainder").FindField(u"XAgents"), nullptr);
}

TEST_F(MakeCardFileTest, MakeCardFile_TwoDateFieldsThatShareAReminderColumn_Fail) {
  EXPECT_EQ(Make(ACardFile().With(DateField(u"X"_s)).With(DateField(u"XAgents"_s))), 3191);
  EXPECT_FALSE(Global().File().HasTable(u"TableDatesRemainder"));
}

TEST_F(MakeCardFileTest, MakeCardFile_ValueListNamedAsAnotherTable_Fails) {
  EXPECT_EQ(Make(ACardFile().With(TextField(u"Agen"_s))), 3010);
  EXPECT_TRUE(Global().File().HasTable(u"TabSug"));
  EXPECT_FALSE(Global().File().HasTable(u"TCoop"));
}

TEST_F(MakeCardFileTest, MakeCardFile_FieldRemarks_LeavesAPartialFileOpen) {
  EXPECT_EQ(Make(ACardFile().With(TextField(u"Remarks"_s))), 3191);
  EXPECT_TRUE(QFile::exists(m_path));
  EXPECT_EQ(Global().File().Name(), m_path);
  EXPECT_EQ(Global().File().TableDefs(), QStringList(u"Location"_s));
}

TEST_F(MakeCardFileTest, MakeCardFile_CardNumberColumnWithABlankBehind_Collides) {
  EXPECT_EQ(Make(ACardFile().With(TextField(u"Index@ "_s))), 3191);
}

TEST_F(MakeCardFileTest, MakeCardFile_NamesThatDifferInCaseAlone_AreRefusedByTheEngine) {
  EXPECT_EQ(Make(ACardFile().With(TextField(u"city"_s)).With(TextField(u"City"_s), 2)), 3191);
}

TEST_F(MakeCardFileTest, MakeCardFile_FileExists_ChangesNothing) {
  ASSERT_EQ(Make(ACardFile().With(TextField(u"City"_s))), 0);
  Global().CardDb->Close();
  QFile file(m_path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray before = file.readAll();
  EXPECT_EQ(Make(ACardFile().With(TextField(u"Country"_s))), 3204);
  file.seek(0);
  EXPECT_EQ(file.readAll(), before);
}

TEST_F(MakeCardFileTest, MakeCardFile_DesignAtItsLimits_HasEveryColumn) {
  ACardFile design;
  design.WithTexts(MaxFieldsOnPage, 1);
  for (int page = 2; page <= MaxPages; ++page) design.WithTexts(page == MaxPages ? 15 : 8, page);
  const CardFile file = design.Make();
  EXPECT_EQ(file.Database().TableDefOf(u"MainData").Fields.size(), 103U);
  EXPECT_EQ(file.Rows(u"Location"_s).size(), 1 + MaxPages + MaxFields);
  EXPECT_EQ(file.Rows(u"Select * from Location where Type > 1 AND Tab = 1"_s).size(), MaxFieldsOnPage);
  EXPECT_TRUE(file.Database().HasTable(u"F100T"));
}

TEST_F(MakeCardFileTest, MakeCardFile_NamesWithBlanksDigitsAndSigns_AreColumns) {
  const CardFile file =
      ACardFile().Named(u"1st Größe #2"_s).With(TextField(u"8"_s)).With(NumberField(u"a@b-c_$+="_s)).Make();
  file.AddCard(7, u"Ann"_s, {{u"8"_s, u"eight"_s}, {u"a@b-c_$+="_s, 1.5}});
  EXPECT_EQ(file.Rows(u"Select [1st Größe #2],[8],[a@b-c_$+=] from MainData"_s),
            QStringList(u"Ann|eight|1.5"_s));
}
