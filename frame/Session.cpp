// SPDX-License-Identifier: MIT
#include "frame/Session.h"

#include "resources/strings.h"

namespace velmora {

db::DBEngine& Session::DBEngine() {
  if (!m_engine) m_engine.emplace();
  return *m_engine;
}

db::Database& Session::File() const {
  if (!CardDb) throw db::Error(db::ErrorCode::ObjectClosed, strings::file::NoneOpen);
  return *CardDb;
}

Session& Global() {
  static Session session;
  return session;
}

}  // namespace velmora
