// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/Flag.h"

#include <QString>

#include <cstddef>
#include <cstdint>

namespace velmora {

/// One text shared between the programs of a user through a named block of memory. Nothing locks the block:
/// two writers at once can mix their texts, and leave that to those who use it. The block goes with the last
/// instance that has it, in whatever program.
class CSharedString final {
 public:
  CSharedString() = default;
  ~CSharedString() { Release(); }
  CSharedString(const CSharedString&) = delete;
  CSharedString& operator=(const CSharedString&) = delete;

  /// Opens the block of that name, or makes it without a text; lets go of the one it had. False when that
  /// fails, which LastErr tells, and for an empty name, which changes nothing.
  Flag Create(const QString& name);

  /// The text; empty when there is none, and without a block, which LastErr then tells.
  [[nodiscard]] QString Data();
  /// At most LongestData bytes in the encoding of the locale: a longer text is the caller's fault and is not
  /// stored.
  void SetData(const QString& text);
  /// True while the block holds no text; False without a block, which LastErr then tells.
  [[nodiscard]] Flag IsNull();
  void SetNull();

  /// 0 after what went well; NoBlock; else the system's number of what failed in Create.
  [[nodiscard]] std::int32_t LastErr() const { return m_lastErr; }

  /// The error of an instance that is used without a block.
  static constexpr std::int32_t NoBlock = 13;
  /// The size of a block, and of the text behind its length, in bytes.
  static constexpr std::size_t BlockSize = 65535;
  static constexpr std::size_t LongestData = BlockSize - sizeof(std::int32_t);

 private:
  [[nodiscard]] bool HasBlock();
  [[nodiscard]] std::int32_t Length() const;
  void SetLength(std::int32_t length);
  void Release() noexcept;

  static constexpr int NoMapping = -1;

  QByteArray m_objectName;
  int m_hMapping = NoMapping;
  std::byte* m_pData = nullptr;
  std::int32_t m_lastErr = 0;
};

}  // namespace velmora
