// SPDX-License-Identifier: MIT
#include "cards/ShowContacts.h"

#include "cards/Contacts.h"
#include "forms/ComboBox.h"
#include "frame/Frame.h"
#include "frame/Session.h"

namespace velmora {

namespace {

void FillPhones(ui::ComboBox& list, const ContactPhones& phones) {
  list.Clear();
  for (const QString& number : phones.Numbers) list.AddItem(number);
  list.SetText(phones.Shown);
}

}  // namespace

void ShowContacts() {
  ui::ComboBox& contacts = Frame::Main().AgentLab();
  const ContactPanel panel = ReadContacts(Global().CurCard);
  contacts.Clear();
  for (const QString& entry : panel.Entries) contacts.AddItem(entry);
  contacts.SetText(panel.Shown);
  FillPhones(Frame::Main().TelephonList(), panel.Phones);
}

void ShowContactPhones(ui::ComboBox& contactList, ui::ComboBox& phoneList) {
  if (const auto phones = ReadContactPhones(Global().CurCard, contactList.Text()))
    FillPhones(phoneList, *phones);
}

}  // namespace velmora
