// SPDX-License-Identifier: MIT
#include "engine/repair/Salvage.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>

namespace velmora::db {

namespace {

constexpr qsizetype FirstFreePageAt = 32;
constexpr qsizetype FreePageCountAt = 36;
constexpr int DeepestTree = 40;
/// How often pages may be named by different parents before they are no longer read.
constexpr std::uint8_t MostTries = 4;

std::uint32_t NumberAt(const QByteArray& bytes, qsizetype at) {
  std::uint32_t value = 0;
  for (const char byte : bytes.sliced(at, 4)) value = value << 8 | static_cast<unsigned char>(byte);
  return value;
}

/// Marks the longest series of ids that ascends and lies within the range: the ids that agree with each
/// other.
std::vector<bool> Credible(const std::vector<std::int64_t>& ids, RowRange range) {
  std::vector<std::size_t> tails;
  std::vector<std::ptrdiff_t> before(ids.size(), -1);
  for (std::size_t at = 0; at < ids.size(); ++at) {
    if (!range.Holds(ids[at])) continue;
    const auto place =
        std::ranges::lower_bound(tails, ids[at], {}, [&](std::size_t tail) { return ids[tail]; });
    if (place != tails.begin()) before[at] = static_cast<std::ptrdiff_t>(*std::prev(place));
    if (place == tails.end())
      tails.push_back(at);
    else
      *place = at;
  }
  std::vector<bool> credible(ids.size(), false);
  std::ptrdiff_t at = tails.empty() ? -1 : static_cast<std::ptrdiff_t>(tails.back());
  for (; at >= 0; at = before[static_cast<std::size_t>(at)]) credible[static_cast<std::size_t>(at)] = true;
  return credible;
}

std::vector<std::int64_t> RowIdsOf(const TreePage& page) {
  std::vector<std::int64_t> ids;
  ids.reserve(page.Rows.size());
  for (const RawRow& row : page.Rows) ids.push_back(row.RowId);
  return ids;
}

bool Suits(const RawValue& value, Affinity affinity) {
  using Kind = RawValue::Kind;
  if (value.Type == Kind::Null || affinity == Affinity::Any) return true;
  if (affinity == Affinity::Text) return value.Type == Kind::Text;
  return value.Type == Kind::Whole || value.Type == Kind::Real;
}

bool Suits(const RawRow& row, const SavedTable& table) {
  if (row.Values.size() > table.Columns.size()) return false;
  return std::ranges::equal(row.Values, std::span(table.Columns).first(row.Values.size()),
                            [](const RawValue& value, Affinity affinity) { return Suits(value, affinity); });
}

std::size_t CountSuiting(const TreePage& page, const SavedTable& table, const std::vector<bool>& credible) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < page.Rows.size(); ++at) {
    if (credible[at] && Suits(page.Rows[at], table)) ++count;
  }
  return count;
}

bool IsMost(std::size_t part, std::size_t whole) { return 2 * part >= whole; }

/// Whether most of what an inner page names are pages of tables. Where it is not so, it may be no inner page
/// at all, and the leaves below it are found without it.
bool LeadsToPages(const TreePage& page, const DamagedPages& pages) {
  auto count = static_cast<std::size_t>(std::ranges::count_if(
      page.Children, [&](const TreePage::Child& child) { return pages.IsOfTable(child.Page); }));
  if (pages.IsOfTable(page.LastChild)) ++count;
  return IsMost(count, page.Children.size() + 1);
}

/// The one id that is free between its neighbours, for a row whose own id makes no sense.
std::optional<std::int64_t> OnlyIdAt(std::size_t at, const std::vector<std::int64_t>& ids,
                                     const std::vector<bool>& credible) {
  const bool hasNeighbours = at > 0 && at + 1 < ids.size() && credible[at - 1] && credible[at + 1];
  if (!hasNeighbours || ids[at + 1] - ids[at - 1] != 2) return std::nullopt;
  return ids[at - 1] + 1;
}

}  // namespace

RowRange RowRange::All() {
  // No row of ours has the lowest id of all.
  return {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()};
}

Salvage::Salvage(const DamagedPages& pages)
    : m_pages(pages),
      m_claimed(std::size_t{pages.Count()} + 1),
      m_isChild(m_claimed.size()),
      m_tries(m_claimed.size()) {
  ClaimFreePages();
  FindChildren();
}

void Salvage::ClaimFreePages() {
  std::uint32_t found = 0;
  std::uint32_t trunk = m_pages.HeaderNumber(FirstFreePageAt);
  while (trunk > 1 && trunk <= m_pages.Count() && !m_claimed[trunk]) {
    const QByteArray bytes = m_pages.Bytes(trunk);
    if (bytes.size() < m_pages.PageSize()) break;
    const std::uint32_t leaves = NumberAt(bytes, 4);
    if (leaves > static_cast<std::uint32_t>(m_pages.PageSize() / 4 - 2)) break;
    m_claimed[trunk] = true;
    ++found;
    for (std::uint32_t leaf = 0; leaf < leaves; ++leaf) {
      const std::uint32_t page = NumberAt(bytes, 8 + 4 * static_cast<qsizetype>(leaf));
      if (page < 2 || page > m_pages.Count()) continue;
      m_claimed[page] = true;
      ++found;
    }
    trunk = NumberAt(bytes, 0);
  }
  m_knowsFreePages = trunk == 0 && found == m_pages.HeaderNumber(FreePageCountAt);
}

void Salvage::FindChildren() {
  const auto mark = [this](std::uint32_t page) {
    if (page <= m_pages.Count()) m_isChild[page] = true;
  };
  for (std::uint32_t number = 1; number <= m_pages.Count(); ++number) {
    if (m_claimed[number] || !m_pages.IsInner(number)) continue;
    const std::optional<TreePage> page = m_pages.Read(number);
    for (const TreePage::Child& child : page->Children) mark(child.Page);
    mark(page->LastChild);
  }
}

void Salvage::SaveSchema(SavedTable& schema) {
  if (!Visit(schema, 1, RowRange::All(), 0)) AddHole(schema, RowRange::All());
}

void Salvage::Save(std::span<SavedTable> tables) {
  // A root that other pages take for their child may be a number that was damaged: the others' claim goes
  // first.
  for (const bool isChild : {false, true}) {
    for (SavedTable& table : tables) {
      const bool inFile = table.Root > 1 && table.Root <= m_pages.Count();
      if ((inFile && m_isChild[table.Root]) != isChild) continue;
      if (!inFile || !Visit(table, table.Root, RowRange::All(), 0)) AddHole(table, RowRange::All());
    }
  }
  const bool hasHoles =
      std::ranges::any_of(tables, [](const SavedTable& table) { return !table.Holes.empty(); });
  if (hasHoles) SaveStrayPages(tables);
}

bool Salvage::HasMisfits() const {
  return std::ranges::any_of(m_misfits, [this](std::uint32_t page) { return !m_claimed[page]; });
}

void Salvage::AddHole(SavedTable& table, RowRange range) {
  table.Holes.push_back(range);
  m_hasLosses = true;
}

bool Salvage::Visit(SavedTable& table, std::uint32_t number, RowRange range, int depth) {
  if (number < 1 || number > m_pages.Count() || (number == 1) != (table.Root == 1 && depth == 0))
    return false;
  if (m_claimed[number] || depth > DeepestTree || m_tries[number] >= MostTries) return false;
  ++m_tries[number];
  const auto visit = [&](const std::optional<TreePage>& page) {
    if (!page) return false;
    return page->IsLeaf ? VisitLeaf(table, *page, range) : VisitInner(table, *page, range, depth);
  };
  // What the page says of its own kind may be the damage.
  return visit(m_pages.Read(number)) || visit(m_pages.ReadAs(number, true)) ||
         visit(m_pages.ReadAs(number, false));
}

bool Salvage::VisitInner(SavedTable& table, const TreePage& page, RowRange range, int depth) {
  std::vector<std::int64_t> keys;
  for (const TreePage::Child& child : page.Children) keys.push_back(child.Key);
  const std::vector<bool> credible = Credible(keys, range);
  const auto count = static_cast<std::size_t>(std::ranges::count(credible, true));
  if (!IsMost(count, keys.size()) || !LeadsToPages(page, m_pages)) return false;
  m_claimed[page.Number] = true;
  if (page.IsDamaged) AddHole(table, range);

  const auto visit = [&](std::uint32_t child, RowRange below) {
    if (!Visit(table, child, below, depth + 1)) AddHole(table, below);
  };
  std::int64_t above = range.Above;
  for (std::size_t at = 0; at < keys.size(); ++at) {
    std::size_t next = at;
    while (next < keys.size() && !credible[next]) ++next;
    visit(page.Children[at].Page, {above, next < keys.size() ? keys[next] : range.UpTo});
    if (credible[at])
      above = keys[at];
    else
      m_hasLosses = true;
  }
  visit(page.LastChild, {above, range.UpTo});
  return true;
}

bool Salvage::VisitLeaf(SavedTable& table, const TreePage& page, RowRange range) {
  const std::vector<std::int64_t> ids = RowIdsOf(page);
  const std::vector<bool> credible = Credible(ids, range);
  const auto fits = [&](const RawRow& row) { return range.Holds(row.RowId) && Suits(row, table); };
  if (!IsMost(CountSuiting(page, table, credible), ids.size())) {
    const auto isTooLong = [&](const RawRow& row) { return row.Values.size() > table.Columns.size(); };
    const auto tooLong = static_cast<std::size_t>(std::ranges::count_if(page.Rows, isTooLong));
    if (IsMost(tooLong, ids.size())) m_misfits.push_back(page.Number);
    return false;
  }
  // Without a row that speaks for it, a damaged page may be anybody's.
  if (ids.empty() && page.IsDamaged && std::ranges::none_of(page.Unnamed, fits)) return false;
  m_claimed[page.Number] = true;
  if (page.HasLostBytes) m_hasLosses = true;

  std::map<std::int64_t, const RawRow*> taken;
  std::vector<std::size_t> displaced;
  const auto put = [&](const RawRow& row, std::optional<std::int64_t> rowId) {
    if (rowId) taken[*rowId] = &row;
    if (!row.IsWhole) m_hasLosses = true;
    table.Put({row, rowId});
  };
  for (std::size_t at = 0; at < ids.size(); ++at) {
    if (page.Rows[at].Values.size() > table.Columns.size())
      m_hasLosses = true;
    else if (credible[at])
      put(page.Rows[at], ids[at]);
    else
      displaced.push_back(at);
  }
  for (const RawRow& row : page.Unnamed) {
    if (fits(row) && !taken.contains(row.RowId))
      put(row, row.RowId);
    else
      m_hasLosses = true;
  }
  for (const std::size_t at : displaced) {
    const auto same = taken.find(ids[at]);
    // A damaged pointer that leads to another row of the page.
    if (same != taken.end() && same->second->Values == page.Rows[at].Values) continue;
    m_hasLosses = true;
    const std::optional<std::int64_t> rowId = OnlyIdAt(at, ids, credible);
    put(page.Rows[at], rowId && !taken.contains(*rowId) ? rowId : std::nullopt);
  }
  return true;
}

void Salvage::SaveStrayPages(std::span<SavedTable> tables) {
  for (const bool heedHoles : {true, false}) {
    // Without the list of free pages, a page that fits nowhere exactly is as likely to hold deleted rows.
    if (!heedHoles && !m_knowsFreePages) return;
    for (std::uint32_t number = 2; number <= m_pages.Count(); ++number) {
      if (m_claimed[number]) continue;
      const std::optional<TreePage> page = m_pages.Read(number);
      if (!page || !page->IsLeaf || page->Rows.empty()) continue;
      RowRange range = RowRange::All();
      SavedTable* const owner = OwnerOf(*page, tables, heedHoles, range);
      if (owner != nullptr) VisitLeaf(*owner, *page, range);
    }
  }
}

/// The one table with a hole that the page can have come from; null when there is none, or more than one.
SavedTable* Salvage::OwnerOf(const TreePage& page, std::span<SavedTable> tables, bool heedHoles,
                             RowRange& range) const {
  const std::vector<std::int64_t> ids = RowIdsOf(page);
  struct Candidate {
    SavedTable* Table;
    RowRange Range;
    std::size_t Suiting;
    bool HasAllColumns;
  };
  std::optional<Candidate> best;
  bool isTied = false;
  for (SavedTable& table : tables) {
    for (const RowRange& hole : table.Holes) {
      if (heedHoles && !hole.Holds(ids[ids.size() / 2])) continue;
      const RowRange within = heedHoles ? hole : RowRange::All();
      const std::size_t suiting = CountSuiting(page, table, Credible(ids, within));
      if (suiting == 0 || !IsMost(suiting, ids.size())) continue;
      const bool hasAll = page.Rows.front().Values.size() == table.Columns.size();
      const auto rank = [](const Candidate& candidate) {
        return std::pair(candidate.HasAllColumns, candidate.Suiting);
      };
      const Candidate candidate{&table, within, suiting, hasAll};
      if (best && rank(candidate) < rank(*best)) continue;
      isTied = best && rank(candidate) == rank(*best) && (isTied || best->Table != &table);
      best = candidate;
      if (!heedHoles) break;
    }
  }
  if (!best || isTied) return nullptr;
  range = best->Range;
  return best->Table;
}

}  // namespace velmora::db
