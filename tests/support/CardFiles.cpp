// SPDX-License-Identifier: MIT
#include "tests/support/CardFiles.h"

#include "cardfile/MakeCardFile.h"
#include "frame/Session.h"

#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace velmora::test {

DesignField TextField(const QString& name) { return {name, FieldKind::Text}; }
DesignField NumberField(const QString& name) { return {name, FieldKind::Number}; }
DesignField YesNoField(const QString& name) { return {name, FieldKind::YesNo}; }
DesignField DateField(const QString& name) { return {name, FieldKind::Date}; }

CardFile::CardFile(const CardDesign& design)
    : m_path(m_dir.filePath(u"cards.ddb"_s)), m_mainField(design.MainField) {
  Global() = Session();
  MakeCardFile(m_path, design);
  Global().FilePath = m_path;
  Global().NoFile = False;
}

CardFile::~CardFile() { Global() = Session(); }

db::Database& CardFile::Database() const { return Global().File(); }

void CardFile::AddRow(const QString& table, const Values& values) const {
  db::Recordset rows = Database().OpenRecordset(table);
  rows.AddNew();
  for (const auto& [column, value] : values) rows.Set(column, value);
  rows.Update();
}

void CardFile::AddCard(std::int32_t number, const QString& name, const Values& values) const {
  Values all{{u"Index@"_s, number}, {m_mainField, name}};
  all.insert(all.end(), values.begin(), values.end());
  AddRow(u"MainData"_s, all);
}

void CardFile::AddContact(std::int32_t card, const QString& name, const Values& values) const {
  Values all{{u"Index"_s, card}, {u"Name"_s, name}};
  for (const QString& column : {u"1"_s, u"6"_s, u"7"_s, u"8"_s, u"9"_s}) all.emplace_back(column, u""_s);
  all.insert(all.end(), values.begin(), values.end());
  AddRow(u"Agent"_s, all);
}

QStringList CardFile::Rows(const QString& source) const {
  QStringList found;
  db::Recordset rows = Database().OpenRecordset(source);
  for (; !rows.AtEnd(); rows.MoveNext()) {
    QStringList texts;
    for (int i = 0; i < rows.FieldCount(); ++i) texts += rows.At(i).TextOr(u"Null"_s);
    found += texts.join(u'|');
  }
  return found;
}

ACardFile& ACardFile::Named(const QString& mainField) {
  m_design.MainField = mainField;
  return *this;
}

ACardFile& ACardFile::With(const DesignField& field, int page) {
  Page(page).Fields.push_back(field);
  return *this;
}

ACardFile& ACardFile::WithTexts(int count, int page) {
  for (int i = 0; i < count; ++i) With(TextField(u'F' + QString::number(++m_texts)), page);
  return *this;
}

ACardFile& ACardFile::Titled(int page, const QString& title) {
  Page(page).Title = title;
  return *this;
}

std::vector<QStringList> ReadCsv(const QString& name) {
  QFile file(QStringLiteral(VELMORA_TEST_DATA "/data/") + name);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no test data");
  const QString text = QString::fromUtf8(file.readAll());
  std::vector<QStringList> rows;
  QStringList row;
  QString cell;
  bool isQuoted = false;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c == u'"') {
      const bool isDoubled = isQuoted && i + 1 < text.size() && text[i + 1] == u'"';
      if (isDoubled) cell += text[++i];
      if (!isDoubled) isQuoted = !isQuoted;
    } else if (isQuoted || (c != u',' && c != u'\r' && c != u'\n')) {
      cell += c;
    } else if (c != u'\r') {
      row += std::exchange(cell, QString());
      if (c == u'\n') rows.push_back(std::exchange(row, {}));
    }
  }
  rows.erase(rows.begin());
  return rows;
}

}  // namespace velmora::test
