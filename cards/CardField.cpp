// SPDX-License-Identifier: MIT
#include "cards/CardField.h"

#include "base/text/Numbers.h"
#include "cards/Reminders.h"
#include "controls/DateCtrl.h"
#include "forms/Buttons.h"
#include "forms/MaskEdBox.h"
#include "forms/TextBox.h"
#include "frame/Session.h"

#include <QSignalBlocker>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

class TextField final : public CardField {
 public:
  TextField(ui::TextBox& box, int page) : CardField(box, page), m_box(box) {}

  void Show(const db::Recordset& row, const QString& column, CardReminders& /*reminders*/) override {
    m_box.SetText({});
    if (const db::Value value = row[column]; !value.IsNull()) m_box.SetText(value.Text());
  }
  void Store(db::Recordset& row, const QString& column) override {
    // An emptied field is stored as one space.
    if (m_box.Text().isEmpty()) m_box.SetText(u" "_s);
    row.Set(column, m_box.Text());
  }

 private:
  ui::TextBox& m_box;
};

class CheckField final : public CardField {
 public:
  CheckField(ui::CheckBox& box, int page) : CardField(box, page), m_box(box) {}

  void Show(const db::Recordset& row, const QString& column, CardReminders& /*reminders*/) override {
    m_box.SetValue(0);
    if (const db::Value value = row[column]; !value.IsNull()) m_box.SetValue(value.Truth() ? 1 : 0);
  }
  void Store(db::Recordset& row, const QString& column) override { row.Set(column, m_box.Value()); }

 private:
  ui::CheckBox& m_box;
};

class NumberField final : public CardField {
 public:
  NumberField(ui::MaskEdBox& box, int page) : CardField(box, page), m_box(box) {}

  void Show(const db::Recordset& row, const QString& column, CardReminders& /*reminders*/) override {
    // The mask would not let a fraction or a sign in.
    m_box.SetMask({});
    m_box.SetText({});
    if (const db::Value value = row[column]; !value.IsNull()) m_box.SetText(value.Text());
    m_box.SetMask(NumberMask.toString());
  }
  void Store(db::Recordset& row, const QString& column) override {
    // The mask takes spaces; between digits they count for nothing.
    QString digits = m_box.Text();
    digits.remove(u' ');
    // An empty box leaves the column as it is: a number cannot be cleared.
    if (!digits.isEmpty()) row.Set(column, LeadingNumber(digits));
  }

 private:
  ui::MaskEdBox& m_box;
};

class DateField final : public CardField {
 public:
  DateField(DateCtrl& box, int page) : CardField(box, page), m_box(box) {}

  void Show(const db::Recordset& row, const QString& column, CardReminders& reminders) override {
    // The box tells of every text that is put in; this one is no edit.
    const QSignalBlocker quiet(&m_box);
    m_box.SetText({});
    const db::Value value = row[column];
    if (value.IsNull()) {
      m_box.SetIsActive(false);
      return;
    }
    m_box.SetText(value.Text());
    const bool active = reminders.Has(column);
    m_box.SetIsActive(active);
    if (active) m_box.strAgents = reminders.Agents(column);
  }
  void Store(db::Recordset& row, const QString& column) override {
    if (m_box.Text().isEmpty()) {
      row.Set(column, db::Value::Null());
      return;
    }
    row.Set(column, m_box.Text());
  }
  void StoreReminder(const QString& column, std::int32_t card, ReminderSave reminders) override {
    if (m_box.Text().isEmpty()) return;
    if (m_box.strAgents.trimmed().isEmpty()) m_box.strAgents = Global().UserName;
    if (m_box.IsActive()) {
      SaveReminder(column, card, m_box.Text(), m_box.strAgents);
    } else if (reminders == ReminderSave::SetAndClear) {
      ClearReminder(column, card);
    }
  }

 private:
  DateCtrl& m_box;
};

}  // namespace

std::unique_ptr<CardField> MakeCardField(ui::TextBox& box, int page) {
  return std::make_unique<TextField>(box, page);
}

std::unique_ptr<CardField> MakeCardField(ui::MaskEdBox& box, int page) {
  return std::make_unique<NumberField>(box, page);
}

std::unique_ptr<CardField> MakeCardField(ui::CheckBox& box, int page) {
  return std::make_unique<CheckField>(box, page);
}

std::unique_ptr<CardField> MakeCardField(DateCtrl& box, int page) {
  return std::make_unique<DateField>(box, page);
}

}  // namespace velmora
