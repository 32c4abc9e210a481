// SPDX-License-Identifier: MIT
#include "engine/repair/DamagedPages.h"

#include "engine/file/FileAccess.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

namespace velmora::db {

namespace {

constexpr qsizetype HeaderSize = 100;
constexpr qsizetype PageSizeAt = 16;
constexpr qsizetype ReservedAt = 20;
constexpr qsizetype PageCountAt = 28;
constexpr qsizetype EncodingAt = 56;
constexpr std::uint32_t Utf16LittleEndian = 2;
constexpr std::uint32_t Utf16BigEndian = 3;
/// How many times the file's size may be read for long values.
constexpr std::int64_t OverflowBudget = 8;
constexpr std::int64_t SmallestPage = 512;
constexpr std::int64_t LargestPage = 65536;
constexpr std::int64_t SmallestUsable = 480;
constexpr int InnerTablePage = 5;
constexpr int LeafTablePage = 13;
constexpr int InnerIndexPage = 2;
constexpr int LeafIndexPage = 10;
constexpr qsizetype SmallestCell = 4;
constexpr int LongestVarint = 9;
/// How much of a file is looked at to tell the page size.
constexpr std::int64_t SampledBytes = 4 << 20;
/// How many pages are looked at to tell how much of them is in use.
constexpr std::uint32_t SampledPages = 64;
/// How much the header's word counts beside what the pages show.
constexpr double StatedWeight = 1.5;

int ByteAt(const QByteArray& bytes, qsizetype at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

std::uint32_t Short(const QByteArray& bytes, qsizetype at) {
  return static_cast<std::uint32_t>(ByteAt(bytes, at) << 8 | ByteAt(bytes, at + 1));
}

std::uint32_t Number(const QByteArray& bytes, qsizetype at) {
  return Short(bytes, at) << 16 | Short(bytes, at + 2);
}

/// Reads a number of one to nine bytes and moves behind it; nothing when the bytes end before it does.
std::optional<std::uint64_t> Varint(const QByteArray& bytes, qsizetype& at) {
  std::uint64_t value = 0;
  for (int count = 1; count <= LongestVarint; ++count) {
    if (at >= bytes.size()) return std::nullopt;
    const auto byte = static_cast<std::uint64_t>(ByteAt(bytes, at++));
    if (count == LongestVarint) return value << 8 | byte;
    value = value << 7 | (byte & 0x7f);
    if ((byte & 0x80) == 0) return value;
  }
  return std::nullopt;
}

/// The length of a value of that type; nothing for the types that no row may hold.
std::optional<std::uint64_t> LengthOf(std::uint64_t type) {
  constexpr std::array<std::uint64_t, 10> fixed{0, 1, 2, 3, 4, 6, 8, 8, 0, 0};
  if (type < fixed.size()) return fixed[type];
  if (type < 12) return std::nullopt;
  return (type - 12) / 2;
}

std::int64_t SignedNumber(QByteArrayView bytes) {
  std::int64_t value = bytes.isEmpty() ? 0 : static_cast<signed char>(bytes[0]);
  for (const char byte : bytes.sliced(std::min<qsizetype>(1, bytes.size()))) {
    value =
        static_cast<std::int64_t>(static_cast<std::uint64_t>(value) << 8 | static_cast<unsigned char>(byte));
  }
  return value;
}

}  // namespace

/// Which bytes of a page its header, its cells and its free blocks account for. What lies between belongs to
/// cells that the page no longer names.
class DamagedPages::Layout final {
 public:
  Layout(const QByteArray& page, qsizetype start, bool isLeaf, qsizetype usable)
      : m_page(page), m_usable(usable), m_start(start) {
    m_pointers = start + (isLeaf ? 8 : 12);
    const qsizetype possible = (usable - m_pointers) / 2;
    m_named = std::min<qsizetype>(Short(page, start + 3), possible);
  }
  [[nodiscard]] qsizetype Named() const { return m_named; }
  [[nodiscard]] qsizetype CellAt(qsizetype index) const { return Short(m_page, m_pointers + 2 * index); }
  [[nodiscard]] qsizetype PointersEnd() const { return m_pointers + 2 * m_named; }

  void Take(qsizetype begin, qsizetype end) { m_taken.emplace_back(begin, end); }
  /// Adds the free blocks; false when their chain makes no sense.
  bool TakeFreeBlocks() {
    qsizetype at = Short(m_page, m_start + 1);
    qsizetype last = 0;
    while (at != 0) {
      const qsizetype length = Short(m_page, at + 2);
      if (at <= last || at + length > m_usable || length < SmallestCell) return false;
      Take(at, at + length);
      last = at;
      at = Short(m_page, at);
    }
    return true;
  }
  /// The stretches of the cell area that nothing accounts for, each at least as long as a cell.
  [[nodiscard]] std::vector<std::pair<qsizetype, qsizetype>> Gaps() {
    std::ranges::sort(m_taken);
    const qsizetype first = m_taken.empty() ? m_usable : m_taken.front().first;
    qsizetype stated = Short(m_page, m_start + 5);
    if (stated == 0) stated = LargestPage;
    qsizetype at = stated >= m_pointers && stated <= first ? stated : first;
    m_taken.emplace_back(m_usable, m_usable);
    std::vector<std::pair<qsizetype, qsizetype>> gaps;
    qsizetype unaccounted = 0;
    for (const auto& [begin, end] : m_taken) {
      if (begin - at >= SmallestCell) gaps.emplace_back(at, begin);
      unaccounted += std::max<qsizetype>(0, begin - at);
      at = std::max(at, end);
    }
    // Splinters between cells are counted by the page itself.
    if (unaccounted == ByteAt(m_page, m_start + 7)) gaps.clear();
    return gaps;
  }

 private:
  const QByteArray& m_page;
  qsizetype m_usable;
  qsizetype m_start;
  qsizetype m_pointers = 0;
  qsizetype m_named = 0;
  std::vector<std::pair<qsizetype, qsizetype>> m_taken;
};

DamagedPages::DamagedPages(int descriptor)
    : m_descriptor(descriptor), m_header(ReadAt(descriptor, 0, HeaderSize)) {
  const std::int64_t fileSize = StatusOf(descriptor).st_size;
  m_pageSize = FindPageSize(fileSize);
  m_count = static_cast<std::uint32_t>(std::min<std::int64_t>((fileSize + m_pageSize - 1) / m_pageSize,
                                                              std::numeric_limits<std::uint32_t>::max()));
  const std::uint32_t encoding = Number(m_header, EncodingAt);
  if (encoding == Utf16LittleEndian || encoding == Utf16BigEndian) m_encoding = encoding;
  m_overflowLeft = OverflowBudget * fileSize;
  FindUsableSize();
  m_overflowLeft = OverflowBudget * fileSize;
}

/// Some tools keep a few bytes at the end of each page for themselves; ours does not.
void DamagedPages::FindUsableSize() {
  m_usable = m_pageSize;
  const std::int64_t stated = m_pageSize - ByteAt(m_header, ReservedAt);
  if (stated == m_pageSize || stated < SmallestUsable) return;
  const int damagedWithout = CountDamaged();
  m_usable = stated;
  if (CountDamaged() > damagedWithout) m_usable = m_pageSize;
}

/// How many of the first pages make no sense.
int DamagedPages::CountDamaged() const {
  int damaged = 0;
  for (std::uint32_t number = 1; number <= std::min(m_count, SampledPages); ++number) {
    const std::optional<TreePage> page = Read(number);
    if (page && page->IsDamaged) ++damaged;
  }
  return damaged;
}

std::uint32_t DamagedPages::HeaderNumber(qsizetype offset) const { return Number(m_header, offset); }

std::int64_t DamagedPages::FindPageSize(std::int64_t fileSize) const {
  const std::int64_t raw = Short(m_header, PageSizeAt);
  const std::int64_t stated = raw == 1 ? LargestPage : raw;
  const bool isPossible = stated >= SmallestPage && std::has_single_bit(static_cast<std::uint64_t>(stated));
  if (isPossible && stated * Number(m_header, PageCountAt) == fileSize) return stated;
  std::int64_t bestSize = isPossible ? stated : SmallestPage;
  // What the header says needs clearly better evidence to be overruled.
  double best = isPossible ? StatedWeight * EvidenceFor(stated, fileSize) : -1;
  for (std::int64_t size = SmallestPage; size <= LargestPage; size *= 2) {
    const double evidence = EvidenceFor(size, fileSize);
    if (evidence <= best) continue;
    best = evidence;
    bestSize = size;
  }
  return bestSize;
}

/// How well the file falls into pages of that size. Too small a size finds pages of a tree at few of its many
/// places, a multiple of the true size finds them at nearly all of too few places; the product of number and
/// share is greatest for the true one.
double DamagedPages::EvidenceFor(std::int64_t pageSize, std::int64_t fileSize) const {
  double found = 0;
  double looked = 0;
  const std::int64_t end = std::min(fileSize, SampledBytes);
  for (std::int64_t at = 0; at + pageSize <= end; at += pageSize, ++looked) {
    const QByteArray head = ReadAt(m_descriptor, at == 0 ? HeaderSize : at, 8);
    const int kind = ByteAt(head, 0);
    const bool isTreePage =
        kind == InnerTablePage || kind == LeafTablePage || kind == InnerIndexPage || kind == LeafIndexPage;
    const std::int64_t content = Short(head, 5) == 0 ? LargestPage : Short(head, 5);
    const std::int64_t pointersEnd = 8 + 2 * static_cast<std::int64_t>(Short(head, 3));
    if (isTreePage && content <= pageSize && pointersEnd <= content) ++found;
  }
  return looked == 0 ? 0 : found * found / looked;
}

QByteArray DamagedPages::Bytes(std::uint32_t number) const {
  if (number < 1 || number > m_count) return {};
  return ReadAt(m_descriptor, (static_cast<std::int64_t>(number) - 1) * m_pageSize, m_pageSize);
}

int DamagedPages::KindByteOf(std::uint32_t number) const {
  if (number < 1 || number > m_count) return 0;
  const std::int64_t start = number == 1 ? HeaderSize : (static_cast<std::int64_t>(number) - 1) * m_pageSize;
  return ByteAt(ReadAt(m_descriptor, start, 1), 0);
}

bool DamagedPages::IsInner(std::uint32_t number) const { return KindByteOf(number) == InnerTablePage; }

bool DamagedPages::IsOfTable(std::uint32_t number) const {
  const int kind = KindByteOf(number);
  return kind == InnerTablePage || kind == LeafTablePage;
}

std::optional<TreePage> DamagedPages::Read(std::uint32_t number) const {
  const QByteArray bytes = Bytes(number);
  const int kind = ByteAt(bytes, number == 1 ? HeaderSize : 0);
  if (kind != InnerTablePage && kind != LeafTablePage) return std::nullopt;
  return TakeApart(number, bytes, kind == LeafTablePage);
}

std::optional<TreePage> DamagedPages::ReadAs(std::uint32_t number, bool isLeaf) const {
  const QByteArray bytes = Bytes(number);
  TreePage page = TakeApart(number, bytes, isLeaf);
  const std::size_t named = Short(bytes, (number == 1 ? HeaderSize : 0) + 3);
  const std::size_t found = isLeaf ? page.Rows.size() : page.Children.size();
  if (found == 0 || 2 * found < named) return std::nullopt;
  page.IsDamaged = true;
  return page;
}

TreePage DamagedPages::TakeApart(std::uint32_t number, const QByteArray& bytes, bool isLeaf) const {
  const qsizetype start = number == 1 ? HeaderSize : 0;
  TreePage page;
  page.Number = number;
  page.IsLeaf = isLeaf;
  if (!isLeaf) page.LastChild = Number(bytes, start + 8);
  Layout layout(bytes, start, isLeaf, static_cast<qsizetype>(m_usable));
  for (qsizetype index = 0; index < layout.Named(); ++index) {
    const qsizetype begin = layout.CellAt(index);
    std::optional<Cell> cell;
    if (begin >= layout.PointersEnd()) cell = ReadCell(bytes, begin, page.IsLeaf);
    if (!cell) {
      page.IsDamaged = true;
      continue;
    }
    layout.Take(cell->Begin, cell->End);
    if (page.IsLeaf)
      page.Rows.push_back(std::move(cell->Row));
    else
      page.Children.push_back(cell->Child);
  }
  if (!layout.TakeFreeBlocks()) page.IsDamaged = true;
  for (const auto& [begin, end] : layout.Gaps()) {
    page.IsDamaged = true;
    if (!page.IsLeaf || !TakeUnnamed(bytes, begin, end, page.Unnamed)) page.HasLostBytes = true;
  }
  return page;
}

/// Takes the rows in a stretch that the page does not name. False when bytes are left over.
bool DamagedPages::TakeUnnamed(const QByteArray& page, qsizetype at, qsizetype end,
                               std::vector<RawRow>& rows) const {
  // Rows lie close together, with splinters of up to three bytes between them.
  qsizetype rowEnd = at;
  while (end - at >= SmallestCell && at - rowEnd < SmallestCell) {
    std::optional<Cell> cell = ReadCell(page, at, true);
    if (!cell || cell->End > end) {
      ++at;
      continue;
    }
    at = rowEnd = cell->End;
    rows.push_back(std::move(cell->Row));
  }
  return end - rowEnd < SmallestCell;
}

std::optional<DamagedPages::Cell> DamagedPages::ReadCell(const QByteArray& page, qsizetype begin,
                                                         bool isLeaf) const {
  Cell cell;
  cell.Begin = begin;
  qsizetype at = begin;
  if (!isLeaf) {
    cell.Child.Page = Number(page, at);
    at += 4;
    const std::optional<std::uint64_t> key = Varint(page, at);
    if (!key || at > m_usable) return std::nullopt;
    cell.Child.Key = static_cast<std::int64_t>(*key);
    cell.End = at;
    return cell;
  }
  const std::optional<std::uint64_t> length = Varint(page, at);
  const std::optional<std::uint64_t> rowId = length ? Varint(page, at) : std::nullopt;
  if (!rowId || *length == 0 || *length > static_cast<std::uint64_t>(m_pageSize) * m_count)
    return std::nullopt;
  const auto local = static_cast<qsizetype>(LocalLength(*length));
  const bool overflows = static_cast<std::uint64_t>(local) < *length;
  cell.End = std::max(at + local + (overflows ? 4 : 0), begin + SmallestCell);
  if (cell.End > m_usable || cell.End > page.size()) return std::nullopt;
  QByteArray payload = page.sliced(at, local);
  if (overflows) FollowOverflow(payload, *length, Number(page, at + local));
  std::optional<RawRow> row = ReadRecord(payload, *length);
  if (!row) return std::nullopt;
  cell.Row = std::move(*row);
  cell.Row.RowId = static_cast<std::int64_t>(*rowId);
  return cell;
}

/// How much of a row lies in its page; the rest follows in pages of its own.
std::int64_t DamagedPages::LocalLength(std::uint64_t payload) const {
  const std::int64_t most = m_usable - 35;
  const auto length = static_cast<std::int64_t>(payload);
  if (length <= most) return length;
  const std::int64_t least = (m_usable - 12) * 32 / 255 - 23;
  const std::int64_t rest = least + (length - least) % (m_usable - 4);
  return rest <= most ? rest : least;
}

void DamagedPages::FollowOverflow(QByteArray& payload, std::uint64_t length, std::uint32_t page) const {
  while (static_cast<std::uint64_t>(payload.size()) < length && page > 1 && page <= m_count) {
    m_overflowLeft -= m_pageSize;
    if (m_overflowLeft < 0) return;
    const QByteArray bytes = Bytes(page);
    const std::int64_t missing = static_cast<std::int64_t>(length) - payload.size();
    const auto part = static_cast<qsizetype>(std::min(m_usable - 4, missing));
    if (bytes.size() < part + 4) return;
    payload.append(bytes.constData() + 4, part);
    page = Number(bytes, 0);
  }
}

std::optional<RawRow> DamagedPages::ReadRecord(const QByteArray& payload, std::uint64_t length) const {
  qsizetype at = 0;
  const std::optional<std::uint64_t> headerLength = Varint(payload, at);
  if (!headerLength || *headerLength > static_cast<std::uint64_t>(payload.size())) return std::nullopt;
  const auto headerEnd = static_cast<qsizetype>(*headerLength);
  RawRow row;
  std::uint64_t body = *headerLength;
  while (at < headerEnd) {
    const std::optional<std::uint64_t> type = Varint(payload, at);
    const std::optional<std::uint64_t> size = type ? LengthOf(*type) : std::nullopt;
    if (!size || at > headerEnd || *size > length - body) return std::nullopt;
    if (body + *size <= static_cast<std::uint64_t>(payload.size())) {
      row.Values.push_back(ReadValue(*type, QByteArrayView(payload).sliced(static_cast<qsizetype>(body),
                                                                           static_cast<qsizetype>(*size))));
    } else {
      row.Values.emplace_back();
      row.IsWhole = false;
    }
    body += *size;
  }
  if (at != headerEnd || body != length || row.Values.empty()) return std::nullopt;
  return row;
}

RawValue DamagedPages::ReadValue(std::uint64_t type, QByteArrayView bytes) const {
  using Kind = RawValue::Kind;
  if (type == 0) return {};
  if (type == 7) {
    return {Kind::Real, 0, std::bit_cast<double>(SignedNumber(bytes)), {}};
  }
  if (type < 8) return {Kind::Whole, SignedNumber(bytes), 0, {}};
  if (type < 10) return {Kind::Whole, static_cast<std::int64_t>(type) - 8, 0, {}};
  if (type % 2 == 0) return {Kind::Bytes, 0, 0, bytes.toByteArray()};
  if (m_encoding == 1) return {Kind::Text, 0, 0, bytes.toByteArray()};
  QStringDecoder decode(m_encoding == Utf16LittleEndian ? QStringDecoder::Utf16LE : QStringDecoder::Utf16BE);
  return {Kind::Text, 0, 0, QString(decode(bytes)).toUtf8()};
}

}  // namespace velmora::db
