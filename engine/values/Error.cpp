// SPDX-License-Identifier: MIT
#include "engine/values/Error.h"

namespace velmora::db {

Error::Error(ErrorCode code, QString text)
    : m_code(code), m_text(std::move(text)), m_what(m_text.toStdString()) {}

}  // namespace velmora::db
