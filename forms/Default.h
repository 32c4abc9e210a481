// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Form.h"

#include <QPointer>

namespace velmora::ui {

/// A screen's default instance, made and loaded when first touched; after its closing is settled, the next
/// touch makes a new one.
template <typename T>
T& Default() {
  static QPointer<T> instance;
  if (instance.isNull()) {
    auto* made = new T;
    instance = made;
    made->SetForget([] { instance.clear(); });
    made->Load();
    // Its own load may have closed it; it lives on until the caller is done.
    return *made;
  }
  return *instance;
}

}  // namespace velmora::ui
