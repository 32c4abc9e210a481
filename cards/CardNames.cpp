// SPDX-License-Identifier: MIT
#include "cards/CardNames.h"

#include "base/system/Failures.h"
#include "cardfile/CardFileSchema.h"
#include "cardfile/Cards.h"
#include "frame/Session.h"

namespace velmora {

namespace {

db::Recordset CardsNamed(const QString& text, const QString& column) {
  return Cards(Global().File()).With(column, text.trimmed());
}

db::Recordset CardsLike(const QString& text, const QString& column) {
  return Cards(Global().File()).Containing(column, FirstWord(text).trimmed());
}

using Search = db::Recordset (*)(const QString& text, const QString& column);

bool HasAnyCard(Search search, const QString& text, const QString& column) {
  bool found = false;
  Trap([&] { found = !search(text, column).AtEnd(); });
  return found;
}

bool HasOtherCard(Search search, const QString& text, const QString& column) {
  bool found = false;
  Trap([&] {
    db::Recordset rows = search(text, column);
    // No step beyond the first hit: the next one may be a scan away.
    while (!rows.AtEnd() && !found) {
      found = rows[schema::CardNumber.View()].Long() != Global().CurCard;
      if (!found) rows.MoveNext();
    }
  });
  return found;
}

}  // namespace

bool NameTaken(const QString& text, const QString& column) { return HasOtherCard(CardsNamed, text, column); }

bool NameTakenNew(const QString& text, const QString& column) { return HasAnyCard(CardsNamed, text, column); }

bool SimilarNameOther(const QString& text, const QString& column) {
  return HasOtherCard(CardsLike, text, column);
}

bool SimilarName(const QString& text, const QString& column) { return HasAnyCard(CardsLike, text, column); }

std::optional<std::int32_t> FirstCardNamed(const QString& text, const QString& column) {
  const db::Recordset rows = CardsNamed(text, column);
  if (rows.AtEnd()) return std::nullopt;
  return rows[schema::CardNumber.View()].Long();
}

QString FirstWord(const QString& text) {
  const qsizetype blank = text.indexOf(u' ');
  return blank < 0 ? text : text.left(blank);
}

}  // namespace velmora
