// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

namespace velmora::test {

/// The superuser may write anything, so such a run goes on as nobody for a while.
class AsNobody final {
 public:
  AsNobody() : m_wasSuperuser(::geteuid() == 0) {
    if (m_wasSuperuser) {
      EXPECT_EQ(::seteuid(Nobody), 0);
    }
  }
  ~AsNobody() {
    if (m_wasSuperuser) {
      EXPECT_EQ(::seteuid(0), 0);
    }
  }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;

 private:
  static constexpr uid_t Nobody = 65534;
  bool m_wasSuperuser;
};

}  // namespace velmora::test
