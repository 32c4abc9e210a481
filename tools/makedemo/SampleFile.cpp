// SPDX-License-Identifier: MIT
#include "tools/makedemo/SampleFile.h"

#include "cardfile/CardFileSchema.h"
#include "cardfile/MakeCardFile.h"
#include "frame/Session.h"
#include "queries/QueryText.h"
#include "queries/SavedQueries.h"
#include "queries/WhereGenerator.h"
#include "tools/makedemo/CardRows.h"

#include <QFile>

namespace velmora::demo {

using namespace Qt::StringLiterals;

namespace {

CardDesign DesignOf(const Sample& sample) {
  CardDesign design{.MainField = sample.MainField, .Pages = {}};
  for (std::size_t page = 0; page < sample.Pages.size(); ++page) {
    design.Pages.at(page).Title = sample.Pages.at(page).Title;
    for (const SampleField& field : sample.Pages.at(page).Fields)
      design.Pages.at(page).Fields.push_back({.Name = field.Name, .Kind = field.Kind});
  }
  return design;
}

void AddCard(const Sample& sample, std::size_t place) {
  Values values{{schema::CardNumber, CardAt(place)},
                {sample.MainField, sample.Names.at(static_cast<qsizetype>(place))}};
  for (const SamplePage& page : sample.Pages) {
    for (const SampleField& field : page.Fields) values.emplace_back(field.Name, field.Of(place));
  }
  values.emplace_back(schema::Remarks, sample.Remarks(place));
  AddRow(schema::Cards, values);
}

void AddValueLists(const Sample& sample) {
  for (const SamplePage& page : sample.Pages) {
    for (const SampleField& field : page.Fields) {
      if (!sample.ValueLists.contains(field.Name)) continue;
      QStringList values;
      for (std::size_t place = 0; place < static_cast<std::size_t>(sample.Names.size()); ++place)
        values.append(field.Of(place).Text());
      AddValueList(field.Name, values);
    }
  }
}

QueryModel ModelOf(const Sample& sample, const SampleQuery& query) {
  QueryModel model{.Pages = {}, .BaseQuery = query.Base, .UserName = Global().UserName};
  for (std::size_t page = 0; page < sample.Pages.size(); ++page) {
    for (const SampleField& field : sample.Pages.at(page).Fields) {
      QueryField entry{.Name = field.Name, .Kind = field.Kind, .Lines = {}};
      for (const auto& [name, lines] : query.Conditions) {
        if (name == field.Name) entry.Lines = lines;
      }
      model.Pages.at(page).push_back(entry);
    }
  }
  return model;
}

/// As the query screen and the choice of columns store one.
void AddQuery(const Sample& sample, const SampleQuery& query) {
  const QueryModel model = ModelOf(sample, query);
  const QString where = query.All ? BuildWhereAnd(model) : BuildWhereOr(model);
  StoreNewQuery(Global().File(), StoredQueryName(query.Name, model.UserName),
                SelectText(ColumnListText(sample.MainField, query.Columns), where), NewQueryName::Free);
}

void Fill(const Sample& sample, const std::function<void()>& addMore) {
  for (std::size_t place = 0; place < static_cast<std::size_t>(sample.Names.size()); ++place)
    AddCard(sample, place);
  AddValueLists(sample);
  if (addMore) addMore();
  for (const SampleQuery& query : sample.Queries) AddQuery(sample, query);
}

}  // namespace

QString Entry(QString text) { return Filled(text.trimmed().replace(u'\'', u'’')); }

std::int32_t CardAt(std::size_t place) { return static_cast<std::int32_t>(place) + 1; }

void MakeSampleFile(const QString& path, const Sample& sample, const std::function<void()>& addMore) {
  const QString unfinished = path + u".unfinished"_s;
  const QString packed = path + u".packed"_s;
  for (const QString& old : {unfinished, packed}) QFile::remove(old);
  MakeCardFile(unfinished, DesignOf(sample));
  Session& session = Global();
  session.File().AsOneTransaction([&] { Fill(sample, addMore); });
  session.File().Close();
  session.DBEngine().CompactDatabase(unfinished, packed);
  session.DBEngine().ReplaceDatabase(packed, unfinished);
  QFile::remove(path);
  if (!QFile::rename(unfinished, path)) {
    throw db::Error(db::ErrorCode::CannotOpenFile, u"%1 cannot be put into its place."_s.arg(path));
  }
}

}  // namespace velmora::demo
