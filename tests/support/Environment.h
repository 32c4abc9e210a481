// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>

namespace velmora::test {

/// Sets variables of the environment and brings back, at its end, what it found.
class Environment final {
 public:
  Environment() = default;
  ~Environment() {
    for (auto old = m_found.cbegin(); old != m_found.cend(); ++old) {
      if (old.value().isNull()) {
        qunsetenv(old.key().constData());
      } else {
        qputenv(old.key().constData(), old.value());
      }
    }
  }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

  /// A null value takes the variable away.
  void Set(const QByteArray& name, const QByteArray& value) {
    const bool isSet = qEnvironmentVariableIsSet(name.constData());
    if (!m_found.contains(name)) m_found[name] = isSet ? qgetenv(name.constData()) : QByteArray();
    if (value.isNull()) {
      qunsetenv(name.constData());
    } else {
      qputenv(name.constData(), value);
    }
  }

 private:
  QMap<QByteArray, QByteArray> m_found;
};

}  // namespace velmora::test
