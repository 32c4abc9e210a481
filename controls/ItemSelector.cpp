// SPDX-License-Identifier: MIT
#include "controls/ItemSelector.h"

#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "resources/strings.h"

#include <QItemSelectionModel>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int startWidth = 2300;
constexpr int lineHeight = 315;

/// The first line that begins with the text, whatever the case.
int FirstBeginningWith(const ui::ListBox& list, const QString& text) {
  for (int i = 0; i < list.ListCount(); ++i) {
    if (list.List(i).startsWith(text, Qt::CaseInsensitive)) return i;
  }
  return -1;
}

}  // namespace

ItemSelector::ItemSelector(QWidget* parent)
    : QWidget(parent), Control(this), m_enterText(new ui::TextBox(this)) {
  m_enterText->SetName(u"EnterText"_s);
  m_enterText->setAccessibleName(strings::FindInList);
  setFocusProxy(m_enterText);
  connect(m_enterText, &ui::TextBox::Change, this, &ItemSelector::Find);
  connect(m_enterText, &ui::TextBox::EnterPressed, this, &ItemSelector::OnPressEnter);
  SetPlace({.Left = 0, .Top = 0, .Width = startWidth, .Height = lineHeight});
}

void ItemSelector::SetChildCtrl(ui::ListBox* list) {
  disconnect(m_watch);
  m_chosen = QPersistentModelIndex();
  m_list = list;
  if (list != nullptr) {
    m_watch = connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                      &ItemSelector::NoteSelection);
  }
}

void ItemSelector::SetWidth(int width) { Control::SetWidth(width); }

void ItemSelector::SetFocus() { m_enterText->SetFocus(); }

void ItemSelector::OnPlaced() {
  if (Height() != lineHeight) {
    SetHeight(lineHeight);
    return;
  }
  m_enterText->SetPlace({.Left = 0, .Top = 0, .Width = Width(), .Height = lineHeight});
}

void ItemSelector::Find() {
  if (m_list.isNull()) return;
  const int line = FirstBeginningWith(*m_list, m_enterText->Text());
  if (line >= 0) Choose(line);
}

void ItemSelector::Choose(int line) {
  const bool already = m_list->Selected(line);
  const bool same = m_chosen.isValid() && m_chosen.row() == line;
  if (m_chosen.isValid() && !same) {
    const int before = m_chosen.row();
    m_chosen = QPersistentModelIndex();
    m_list->SetSelected(before, false);
  }
  m_list->SetListIndex(line);
  m_list->SetSelected(line, true);
  if (!already) m_chosen = m_list->model()->index(line, 0);
  m_list->SetTopIndex(line);
}

void ItemSelector::NoteSelection() {
  if (m_chosen.isValid() && !m_list.isNull() && !m_list->Selected(m_chosen.row()))
    m_chosen = QPersistentModelIndex();
}

}  // namespace velmora
