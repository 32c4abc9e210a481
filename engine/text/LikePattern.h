// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>

namespace velmora::db {

/// Whether the whole value matches a LIKE pattern: * ? # [abc] [a-f] [!a-f]; case never counts, accents do.
/// A pattern that cannot be read (an open bracket) matches nothing.
[[nodiscard]] bool MatchesLike(QStringView pattern, QStringView value);

/// The text as a part of a pattern in which each character stands for itself.
[[nodiscard]] QString LiteralLike(QStringView text);

/// A LIKE pattern made ready once and matched against many UTF-8 values. "*text*" without other wildcards
/// takes a fast path over the bytes.
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
