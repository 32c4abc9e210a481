// SPDX-License-Identifier: MIT
#include "queries/EnterQuery.h"

#include "base/system/Failures.h"
#include "cardfile/ValueLists.h"
#include "forms/ListBox.h"
#include "forms/Makers.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"
#include "frame/Session.h"
#include "resources/HelpTopics.h"
#include "resources/strings.h"

#include <QVBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int listWidth = 3900;
constexpr int listHeight = 3000;

}  // namespace

EnterQuery::EnterQuery(const QString& field, ui::TextBox& box)
    : Form(u"EnterQuery"_s, strings::picker::MultiTitle), m_field(field), m_box(&box) {
  SetHelpTopic(topics::Queries);
  ListItem = ui::NewControl<ui::ListBox>(this, u"ListItem"_s, {.Spoken = field});
  ListItem->SetMode(ui::ListChoice::Multiple);
  ListItem->setMinimumSize(ui::Pixels(listWidth), ui::Pixels(listHeight));
  auto* update =
      ui::NewCommand(this, u"Command3"_s, strings::valuelist::Update, strings::picker::MultiUpdateTip);
  auto* cancel = ui::NewCommand(this, u"CanBut"_s, strings::Cancel, strings::ClickToExitWithNoChanges);

  auto* rows = new QVBoxLayout(this);
  rows->addWidget(ui::NewLabel(this, u"lblField"_s, field));
  rows->addWidget(ListItem, 1);
  rows->addLayout(ui::NewButtonRow({}, {update, cancel}));
  connect(update, &ui::SSCommand::Click, this, &EnterQuery::UpdateClick);
  connect(cancel, &ui::SSCommand::Click, this, [this] { Unload(); });
}

void EnterQuery::OnLoad() {
  Trap([this] { ListItem->AddItems(ValueLists(Global().File()).ValuesOf(m_field)); });
}

void EnterQuery::UpdateClick() {
  if (ListItem->ListIndex() < 0 || m_box.isNull()) return;
  m_box->Write(ListItem->SelectedLines().join(u"  "_s).trimmed());
  Unload();
}

}  // namespace velmora
