// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>

namespace velmora::db {

/// Order of two texts as the engine sorts and compares them: case does not count (beyond ASCII too), accented
/// Latin letters stand beside their base letter and differ from it, blanks at the end do not count, ß is ss,
/// æ ae, œ oe, þ th. Negative, 0 or positive. UTF-8; shares nothing between calls, so it may run on several
/// threads.
[[nodiscard]] int CompareText(QByteArrayView left, QByteArrayView right);
[[nodiscard]] int CompareText(QStringView left, QStringView right);
/// The form in which two names of tables, columns or queries are the same: folded, blanks at the end dropped.
[[nodiscard]] QString FoldName(QStringView name);

/// Whether the whole value matches a LIKE pattern: * ? # [abc] [a-f] [!a-f]; case never counts, accents do.
/// A pattern that cannot be read (an open bracket) matches nothing.
[[nodiscard]] bool MatchesLike(QStringView pattern, QStringView value);

/// A LIKE pattern made ready once and matched against many UTF-8 values. "*text*" without other signs takes a
/// fast path over the bytes.
class LikePattern final {
 public:
  explicit LikePattern(QStringView pattern);
  ~LikePattern();
  LikePattern(LikePattern&&) noexcept;
  LikePattern& operator=(LikePattern&&) noexcept;
  [[nodiscard]] bool Matches(QByteArrayView value) const;

 private:
  struct Program;
  std::unique_ptr<Program> m_program;
};

}  // namespace velmora::db
