// SPDX-License-Identifier: MIT
#include "cards/ShowContacts.h"

#include "cards/Contacts.h"
#include "frame/Frame.h"
#include "frame/Session.h"

namespace velmora {

void ShowContacts() {
  const ContactPanel panel = ReadContacts(Global().CurCard);
  Frame& frame = Frame::Main();
  frame.ShowContactList(panel.Entries, panel.Shown);
  frame.ShowTelephones(panel.Phones.Numbers, panel.Phones.Shown);
}

void ShowContactPhones(const QString& contact) {
  if (const auto phones = ReadContactPhones(Global().CurCard, contact))
    Frame::Main().ShowTelephones(phones->Numbers, phones->Shown);
}

}  // namespace velmora
