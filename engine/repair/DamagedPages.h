// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace velmora::db {

/// A value as it stands in a row of a file: texts in UTF-8.
struct RawValue {
  enum class Kind { Null, Whole, Real, Text, Bytes };
  Kind Type = Kind::Null;
  std::int64_t Whole = 0;
  double Real = 0;
  QByteArray Bytes;
  friend bool operator==(const RawValue&, const RawValue&) = default;
};

struct RawRow {
  std::int64_t RowId = 0;
  std::vector<RawValue> Values;
  /// False when values are missing because their part of the file cannot be read; they are Null then.
  bool IsWhole = true;
};

/// A page of a table's tree, taken apart. What does not make sense in it is left out.
struct TreePage {
  struct Child {
    std::uint32_t Page = 0;
    /// The greatest row id below this child.
    std::int64_t Key = 0;
  };
  std::uint32_t Number = 0;
  bool IsLeaf = false;
  /// The rows that the page names, in its order (one may be named twice), and those that it holds without
  /// naming them.
  std::vector<RawRow> Rows;
  std::vector<RawRow> Unnamed;
  std::vector<Child> Children;
  std::uint32_t LastChild = 0;
  /// Whether something in it makes no sense.
  bool IsDamaged = false;
  /// Whether bytes of rows are left over that could not be taken apart.
  bool HasLostBytes = false;
};

/// Reads the pages of a database file that SQLite itself refuses to read, as they are laid out in the file,
/// and believes nothing that it finds: every offset, length and page number is checked. Knows nothing of
/// tables.
class DamagedPages final {
 public:
  /// The descriptor stays the caller's and must outlive this object.
  explicit DamagedPages(int descriptor);

  [[nodiscard]] std::uint32_t Count() const { return m_count; }
  [[nodiscard]] std::int64_t PageSize() const { return m_pageSize; }
  /// A number of four bytes in the file's header.
  [[nodiscard]] std::uint32_t HeaderNumber(qsizetype offset) const;
  /// 1 for UTF-8, 2 and 3 for the two UTF-16; believed to be UTF-8 when the header says nothing sensible.
  [[nodiscard]] std::uint32_t Encoding() const { return m_encoding; }

  /// Nothing when the page is not one of a table's tree, or cannot be read.
  [[nodiscard]] std::optional<TreePage> Read(std::uint32_t number) const;
  /// Reads the page as a leaf or as an inner page, whatever it says it is: nothing when most of it makes no
  /// sense so.
  [[nodiscard]] std::optional<TreePage> ReadAs(std::uint32_t number, bool isLeaf) const;
  /// Whether the page says that it is an inner page of a table's tree.
  [[nodiscard]] bool IsInner(std::uint32_t number) const;
  /// Whether the page says that it is one of a table's tree at all.
  [[nodiscard]] bool IsOfTable(std::uint32_t number) const;
  /// The bytes of a page, fewer where the file ends early.
  [[nodiscard]] QByteArray Bytes(std::uint32_t number) const;

 private:
  struct Cell {
    qsizetype Begin = 0;
    qsizetype End = 0;
    RawRow Row;
    TreePage::Child Child;
  };
  class Layout;

  [[nodiscard]] int KindByteOf(std::uint32_t number) const;
  [[nodiscard]] TreePage TakeApart(std::uint32_t number, const QByteArray& bytes, bool isLeaf) const;
  [[nodiscard]] std::int64_t FindPageSize(std::int64_t fileSize) const;
  void FindUsableSize();
  [[nodiscard]] int CountDamaged() const;
  [[nodiscard]] double EvidenceFor(std::int64_t pageSize, std::int64_t fileSize) const;
  [[nodiscard]] std::optional<Cell> ReadCell(const QByteArray& page, qsizetype begin, bool isLeaf) const;
  bool TakeUnnamed(const QByteArray& page, qsizetype at, qsizetype end, std::vector<RawRow>& rows) const;
  [[nodiscard]] std::optional<RawRow> ReadRecord(const QByteArray& payload, std::uint64_t length) const;
  [[nodiscard]] RawValue ReadValue(std::uint64_t type, QByteArrayView bytes) const;
  [[nodiscard]] std::int64_t LocalLength(std::uint64_t payload) const;
  void FollowOverflow(QByteArray& payload, std::uint64_t length, std::uint32_t page) const;

  int m_descriptor;
  QByteArray m_header;
  std::int64_t m_pageSize = 0;
  std::int64_t m_usable = 0;
  std::uint32_t m_count = 0;
  std::uint32_t m_encoding = 1;
  /// What may still be read of long values: a file made to be read for ever is not.
  mutable std::int64_t m_overflowLeft = 0;
};

}  // namespace velmora::db
