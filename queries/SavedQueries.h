// SPDX-License-Identifier: MIT
#pragma once

#include "engine/Database.h"

#include <QStringList>

namespace velmora {

/// Under which name a query is stored: the name that the user sees, an ampersand, the user. The name is taken
/// as it is, spaces included.
[[nodiscard]] QString StoredQueryName(const QString& displayName, const QString& userName);
/// All that stands before the first ampersand.
[[nodiscard]] QString DisplayNameOf(const QString& storedName);
/// Whether a stored definition is a saved query of that user: what stands behind its first ampersand is the
/// user's name, with case. One without an ampersand is nobody's.
[[nodiscard]] bool IsQueryOf(const QString& storedName, const QString& userName);

/// The names, for the user, of his saved queries, in the order of the file's QueryDefs.
[[nodiscard]] QStringList FillQueryNames(db::Database& file, const QString& userName);
/// The same, but only those that read the cards.
[[nodiscard]] QStringList FillQueryList(db::Database& file, const QString& userName);

/// Whether a definition of that name is stored; spaces around either name and case do not count.
[[nodiscard]] bool QueryExists(db::Database& file, const QString& name);
/// Whether the stored statement contains the text, whatever its case; false also when there is no such query.
[[nodiscard]] bool QuerySqlHas(db::Database& file, const QString& name, const QString& text);
/// False when the query can be run.
[[nodiscard]] bool QueryFails(db::Database& file, const QString& name);
/// Deletes the stored query of exactly that name; false when there is none. Throws db::Error.
bool DeleteQuery(db::Database& file, const QString& name);

/// What the field chooser finds about the name typed for a new query.
enum class NewQueryName {
  Free,
  /// It is the name of the query that the new one narrows.
  SameAsBase,
  /// A query of that name is stored.
  Taken,
};
/// The name to use for what was typed: a set one when nothing but spaces was.
[[nodiscard]] QString QueryNameOrDefault(const QString& typed);
/// Blanks around the name do not count. `baseQuery` is empty when nothing is narrowed.
[[nodiscard]] NewQueryName CheckNewQueryName(db::Database& file, const QString& typed,
                                             const QString& baseQuery, const QString& userName);
/// Stores the new query. Only a taken name replaces a query, and only the one of exactly that name: with
/// spaces around it the query that was found stays. Throws db::Error; the old query then stays too.
void StoreNewQuery(db::Database& file, const QString& storedName, const QString& sql, NewQueryName found);

/// What becomes of a query that the user wants to see: one that cannot run any more, for instance because a
/// field that it names was removed, is deleted without a question.
enum class OpenQuery { Show, Deleted };
OpenQuery OpenOrDelete(db::Database& file, const QString& name);

/// What the return to the previous query does.
enum class ReturnStep {
  /// No query was run yet, or it cannot run any more: it stays stored.
  Nothing,
  /// The query reads a kind of list that this program does not show.
  OtherList,
  Show,
};
[[nodiscard]] ReturnStep DecideReturn(db::Database& file, const QString& lastQuery);
/// Whether a statement reads such a list.
[[nodiscard]] bool ReadsOtherList(const QString& sql);

}  // namespace velmora
