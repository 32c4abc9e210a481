// SPDX-License-Identifier: MIT
#include "queries/EnterQuery.h"

#include "base/system/Failures.h"
#include "forms/Buttons.h"
#include "forms/Labels.h"
#include "forms/ListBox.h"
#include "forms/Makers.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"
#include "queries/KnownValues.h"
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
  ListItem = new ui::ListBox(this);
  ListItem->SetName(u"ListItem"_s);
  ListItem->SetMode(ui::ListChoice::Multiple);
  ListItem->setAccessibleName(field);
  const auto button = [this](const QString& name, const QString& caption, const QString& tip) {
    return ui::NewCommand(this, name, caption, tip);
  };
  Command3 = button(u"Command3"_s, strings::valuelist::Update, strings::picker::MultiUpdateTip);
  CanBut = button(u"CanBut"_s, strings::Cancel, strings::ClickToExitWithNoChanges);
  SetupLayout();
  connect(Command3, &ui::SSCommand::Click, this, &EnterQuery::UpdateClick);
  connect(CanBut, &ui::SSCommand::Click, this, [this] { Unload(); });
}

void EnterQuery::SetupLayout() {
  auto* name = new ui::Label(this);
  name->SetName(u"lblField"_s);
  name->SetCaption(m_field);
  ListItem->setMinimumSize(ui::Pixels(listWidth), ui::Pixels(listHeight));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(Command3);
  buttons->addWidget(CanBut);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(name);
  rows->addWidget(ListItem, 1);
  rows->addLayout(buttons);
}

void EnterQuery::OnLoad() {
  Trap([this] { ListItem->AddItems(StoredValues(m_field)); });
}

void EnterQuery::UpdateClick() {
  if (ListItem->ListIndex() < 0 || m_box.isNull()) return;
  QString chosen;
  for (int line = 0; line < ListItem->ListCount(); ++line) {
    if (ListItem->Selected(line)) chosen += ListItem->List(line) + u"  "_s;
  }
  m_box->Write(chosen.trimmed());
  Unload();
}

}  // namespace velmora
