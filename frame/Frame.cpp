// SPDX-License-Identifier: MIT
#include "frame/Frame.h"

#include "frame/Session.h"

namespace velmora {

namespace {

Frame*& Current() {
  static Frame* frame = nullptr;
  return frame;
}

}  // namespace

Frame::Frame() { Current() = this; }

Frame::~Frame() {
  if (Current() == this) Current() = nullptr;
}

Frame& Frame::Main() {
  Q_ASSERT(Current() != nullptr);
  return *Current();
}

bool Frame::OpenWithCards() { return Global().NoFile == False && CardCountZero() == 0; }

}  // namespace velmora
