// SPDX-License-Identifier: MIT
// The sample files as they come with the program: each an ordinary card file, sensibly filled, that every
// screen takes.
#include "cardfile/CardFileSchema.h"
#include "cardfile/FieldCatalogue.h"
#include "cardfile/NameRules.h"
#include "cardfile/ValueLists.h"
#include "engine/DBEngine.h"
#include "frame/Session.h"
#include "queries/SavedQueries.h"
#include "tests/shell/RealFrame.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QSet>
#include <QTableView>
#include <QtTest>

#include <map>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

struct SampleCase {
  const char* Name;
  const char16_t* MainField;
  int Cards;
  std::size_t Fields;
  int Pages;
  qsizetype Queries;
};

void PrintTo(const SampleCase& sample, std::ostream* out) { *out << sample.Name; }

constexpr auto samples = std::to_array<SampleCase>({{"Shops", u"Shop", 89, 100, 10, 6},
                                                    {"Companies", u"Company", 503, 10, 2, 5},
                                                    {"Cities", u"City", 2500, 7, 2, 4}});

/// One sample, copied as its user's own.
class SampleTest : public RealFrame, public testing::WithParamInterface<SampleCase> {
 protected:
  SampleTest() : m_path(PathOf(QLatin1String(GetParam().Name) + u".ddb"_s)) {
    const QString made = QDir(QStringLiteral(VELMORA_SAMPLES)).filePath(QFileInfo(m_path).fileName());
    EXPECT_TRUE(QFile::copy(made, m_path)) << made.toStdString();
  }
  void Open() const { Global().CardDb = Global().DBEngine().OpenDatabase(m_path); }
  static QStringList NamesOf(const std::vector<db::Field>& columns) {
    QStringList names;
    for (const db::Field& column : columns) names.append(column.Name);
    return names;
  }
  static QStringList Texts(const QString& source) {
    QStringList texts;
    for (db::Recordset rows = Global().File().OpenRecordset(source); !rows.AtEnd(); rows.MoveNext())
      texts.append(rows.At(0).TextOr(u"Null"_s));
    return texts;
  }
  static QStringList FieldsOf(FieldKind kind) {
    QStringList names;
    for (const CatalogueRow& row : FieldRows()) {
      if (FieldKindOf(row) == kind) names.append(row.Name.value_or(QString()));
    }
    return names;
  }

  QString m_path;
};

TEST_P(SampleTest, Catalogue_OfTheSample_KeepsTheLimitsOfACard) {
  Open();
  const std::vector<CatalogueRow> rows = CatalogueRows();
  ASSERT_FALSE(rows.empty());
  EXPECT_EQ(rows.front().Type, catalogue::MainField);
  EXPECT_EQ(MainFieldName(), QString::fromUtf16(GetParam().MainField));
  EXPECT_EQ(std::ranges::count(rows, catalogue::MainField, &CatalogueRow::Type), 1);
  EXPECT_EQ(FieldRows().size(), GetParam().Fields);
  EXPECT_LE(GetParam().Fields, static_cast<std::size_t>(MaxFields));
  std::map<int, int> fieldsOnPage;
  for (const CatalogueRow& row : FieldRows()) ++fieldsOnPage[row.Tab];
  ASSERT_EQ(fieldsOnPage.size(), static_cast<std::size_t>(GetParam().Pages));
  for (const auto& [page, fields] : fieldsOnPage) {
    EXPECT_GE(page, 1);
    EXPECT_LE(page, MaxPages);
    EXPECT_LE(fields, MaxFieldsOnPage);
    EXPECT_FALSE(PageTitle(page).value_or(QString()).trimmed().isEmpty());
  }
}

TEST_P(SampleTest, FieldNames_OfTheSample_WouldPassTheWizard) {
  Open();
  QStringList others;
  for (const CatalogueRow& row : FieldRows()) {
    const QString name = row.Name.value_or(QString());
    EXPECT_EQ(CheckFieldName(name, MainFieldName(), others), NameCheck::Fine) << name.toStdString();
    EXPECT_EQ(name, name.trimmed());
    others.append(name);
  }
}

TEST_P(SampleTest, Tables_OfTheSample_AreThoseOfAFileMadeInTheProgram) {
  Open();
  db::Database& file = Global().File();
  CardDesign design{.MainField = MainFieldName(), .Pages = {}};
  for (const CatalogueRow& row : FieldRows()) {
    design.Pages.at(static_cast<std::size_t>(row.Tab - 1))
        .Fields.push_back({.Name = row.Name.value_or(QString()), .Kind = *FieldKindOf(row)});
  }
  std::vector<db::TableDef> expected{MainDataTable(design), ReminderTableOf(FieldsOf(FieldKind::Date))};
  for (const QString& field : FieldsOf(FieldKind::Text)) expected.push_back(ValueListTableOf(field));
  for (const db::TableDef& table : FixedTables()) expected.push_back(table);
  for (const db::TableDef& table : expected) {
    ASSERT_TRUE(file.HasTable(table.Name)) << table.Name.toStdString();
    const db::TableDef stored = file.TableDefOf(table.Name);
    EXPECT_EQ(NamesOf(stored.Fields), NamesOf(table.Fields)) << table.Name.toStdString();
    for (std::size_t i = 0; i < std::min(stored.Fields.size(), table.Fields.size()); ++i) {
      EXPECT_EQ(stored.Fields[i].Type, table.Fields[i].Type) << stored.Fields[i].Name.toStdString();
      if (table.Fields[i].Type == db::FieldType::Text) {
        EXPECT_EQ(stored.Fields[i].Size, table.Fields[i].Size) << stored.Fields[i].Name.toStdString();
      }
    }
  }
  EXPECT_EQ(Texts(u"SupportRemainder"_s), FieldsOf(FieldKind::Date));
}

TEST_P(SampleTest, Cards_OfTheSample_AreFilledAsTheScreensWouldStoreThem) {
  Open();
  db::Recordset rows = Global().File().OpenRecordset(u"MainData"_s);
  ASSERT_EQ(rows.RecordCount(), GetParam().Cards);
  QSet<QString> names;
  std::int32_t number = 0;
  for (; !rows.AtEnd(); rows.MoveNext()) {
    EXPECT_EQ(rows[u"Index@"].Long(), ++number);
    names.insert(rows[MainFieldName()].Text().toCaseFolded());
    for (int i = 0; i < rows.FieldCount(); ++i) {
      ASSERT_FALSE(rows.At(i).IsNull()) << number << ' ' << rows.FieldAt(i).Name.toStdString();
      if (!rows.At(i).IsText()) continue;
      EXPECT_FALSE(rows.At(i).Text().isEmpty()) << number << ' ' << rows.FieldAt(i).Name.toStdString();
      EXPECT_FALSE(rows.At(i).Text().contains(u'\'')) << rows.At(i).Text().toStdString();
    }
  }
  EXPECT_EQ(names.size(), GetParam().Cards) << "a card's name is not its own";
}

TEST_P(SampleTest, ValueLists_OfTheSample_OfferValuesOnceEach) {
  Open();
  int kept = 0;
  for (const QString& field : FieldsOf(FieldKind::Text)) {
    const QStringList values = ValueLists(Global().File()).ValuesOf(field);
    if (!values.isEmpty()) ++kept;
    EXPECT_EQ(QSet<QString>(values.begin(), values.end()).size(), values.size()) << field.toStdString();
    EXPECT_FALSE(values.contains(u" "_s)) << field.toStdString();
  }
  EXPECT_GE(kept, 2);
}

TEST_P(SampleTest, Queries_OfTheSample_AreOfferedAndFindCards) {
  Open();
  db::Database& file = Global().File();
  const QStringList offered = FillQueryList(file, Global().UserName);
  EXPECT_EQ(offered.size(), GetParam().Queries);
  EXPECT_EQ(file.QueryDefs().size(), GetParam().Queries);
  for (const QString& name : offered) {
    const QString stored = StoredQueryName(name, Global().UserName);
    EXPECT_FALSE(QueryFails(file, stored)) << name.toStdString();
    const std::int64_t found = file.OpenRecordset(stored).RecordCount();
    EXPECT_GT(found, 0) << name.toStdString();
    EXPECT_LT(found, GetParam().Cards) << name.toStdString();
  }
}

TEST_P(SampleTest, InTheFrame_FromTheFirstCardToTheLast_ShowsThem) {
  Open();
  const QStringList names = Texts(u"Select [%1] from MainData"_s.arg(MainFieldName()));
  Global() = Session();
  RunOn(m_path);
  EXPECT_EQ(TextOf(u"ShowTable"_s, u"NameRecord"_s), names.first());
  PressInStrip(u"cmdUp"_s);
  EXPECT_EQ(TextOf(u"ShowTable"_s, u"NameRecord"_s), names.at(1));
  QTest::keyClicks(&Find<QWidget>(u"txtSeek"_s), QString::number(GetParam().Cards));
  EXPECT_EQ(TextOf(u"ShowTable"_s, u"NameRecord"_s), names.last());
  for (int page = 0; page < GetParam().Pages; ++page) Press(u"ShowTable"_s, u"Tab(%1)"_s.arg(page));
  EXPECT_EQ(m_main->windowTitle(), m_path);
}

TEST_P(SampleTest, InTheFrame_FieldNames_FitTheirLabels) {
  RunOn(m_path);
  int labels = 0;
  for (const QLabel* label : Screen(u"ShowTable"_s).findChildren<QLabel*>()) {
    if (!label->objectName().startsWith(u"NameLab("_s) || label->text().isEmpty()) continue;
    ++labels;
    EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width())
        << label->text().toStdString();
  }
  EXPECT_EQ(static_cast<std::size_t>(labels), GetParam().Fields);
}

TEST_P(SampleTest, InTheFrame_ItsFirstQueryFromTheList_ShowsItsRows) {
  Open();
  const QString first = FillQueryNames(Global().File(), Global().UserName).value(0);
  const std::int64_t found =
      Global().File().OpenRecordset(StoredQueryName(first, Global().UserName)).RecordCount();
  Global() = Session();
  RunOn(m_path);
  InDialog(
      u"SelectNameQuery"_s, [this] { ClickTool(u"ltTool"_s, 16); },
      [] {
        auto& list = In<QAbstractItemView>(u"SelectNameQuery"_s, u"lstQuery"_s);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualRect(list.model()->index(0, 0)).center());
        Press(u"SelectNameQuery"_s, u"Command1"_s);
      });
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"ResultQuery"_s}));
  EXPECT_EQ(TextOf(u"ResultQuery"_s, u"lblNameQuery"_s), first);
  EXPECT_EQ(In<QTableView>(u"ResultQuery"_s, u"MyFlex"_s).model()->rowCount(), found);
}

std::string SampleName(const testing::TestParamInfo<SampleCase>& info) { return info.param.Name; }

INSTANTIATE_TEST_SUITE_P(Samples, SampleTest, testing::ValuesIn(samples), SampleName);

TEST(SamplesTest, Shops_BesideItsCards_HasContactsRemindersAndItsTelephoneField) {
  const auto file = db::DBEngine().OpenDatabase(QStringLiteral(VELMORA_SAMPLES "/Shops.ddb"));
  EXPECT_GT(file->OpenRecordset(u"Agent"_s).RecordCount(), 89);
  EXPECT_EQ(file->OpenRecordset(u"Select * from Agent where Activ = TRUE"_s).RecordCount(), 89);
  EXPECT_GT(file->OpenRecordset(u"Select * from TableDatesRemainder where [Next visit] > #3/1/2027#"_s)
                .RecordCount(),
            10);
  EXPECT_EQ(file->OpenRecordset(u"Select tVal from tOptions where txtKey = 'FieldDial'"_s).At(0).Text(),
            u"Telephone"_s);
}

}  // namespace
}  // namespace velmora
