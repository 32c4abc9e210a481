// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/CardDesign.h"
#include "engine/Database.h"

#include <QStringList>
#include <QTemporaryDir>

#include <utility>
#include <vector>

namespace velmora::test {

[[nodiscard]] DesignField TextField(const QString& name);
[[nodiscard]] DesignField NumberField(const QString& name);
[[nodiscard]] DesignField YesNoField(const QString& name);
[[nodiscard]] DesignField DateField(const QString& name);

using Values = std::vector<std::pair<QString, db::Value>>;

/// A real card file in a folder of its own, open as the session's card file. The session is as at the
/// program's start again when it goes.
class CardFile final {
 public:
  explicit CardFile(const CardDesign& design);
  ~CardFile();
  CardFile(const CardFile&) = delete;
  CardFile& operator=(const CardFile&) = delete;

  [[nodiscard]] const QString& Path() const { return m_path; }
  [[nodiscard]] db::Database& Database() const;
  void AddRow(const QString& table, const Values& values) const;
  /// A card, its main field and other columns. The session stays on its current card.
  void AddCard(std::int32_t number, const QString& name, const Values& values = {}) const;
  /// A contact with its name; [1], [6], [7], [8] and [9] are empty texts where the values don't tell
  /// otherwise.
  void AddContact(std::int32_t card, const QString& name, const Values& values = {}) const;
  /// All rows, each as its columns joined by '|', Null as "Null".
  [[nodiscard]] QStringList Rows(const QString& source) const;

 private:
  QTemporaryDir m_dir;
  QString m_path;
  QString m_mainField;
};

/// Draws up the design of a card file and makes it.
class ACardFile final {
 public:
  ACardFile& Named(const QString& mainField);
  ACardFile& With(const DesignField& field, int page = 1);
  /// Text fields F1, F2... that go on counting from page to page.
  ACardFile& WithTexts(int count, int page = 1);
  ACardFile& Titled(int page, const QString& title);
  [[nodiscard]] const CardDesign& Design() const { return m_design; }
  [[nodiscard]] CardFile Make() const { return CardFile(m_design); }

 private:
  [[nodiscard]] DesignPage& Page(int page) { return m_design.Pages.at(static_cast<std::size_t>(page - 1)); }

  CardDesign m_design{.MainField = QStringLiteral("Name"), .Pages = {}};
  int m_texts = 0;
};

/// The rows of a file of tests/data, without the line of column names.
[[nodiscard]] std::vector<QStringList> ReadCsv(const QString& name);

}  // namespace velmora::test
