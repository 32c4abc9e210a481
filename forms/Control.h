// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Element.h"
#include "forms/FocusWatcher.h"
#include "forms/Palette.h"

#include <QString>

class QWidget;

namespace velmora::ui {

class ControlArrayBase;

/// A position and size in twips.
struct Place {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
  friend bool operator==(const Place&, const Place&) = default;
};

/// What every control of a screen has beside its Qt widget: its name, its element number and its exact place
/// in twips, which reads back as it was written while the pixels follow the program's scale. Derive a control
/// from its Qt class first and from this second.
class Control : public Element, public FocusTaker, public Colored {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  ~Control() override;

  [[nodiscard]] QWidget* Widget() const { return m_widget; }
  /// The name without the element number: "NameText" of NameText(3).
  [[nodiscard]] QString Name() const { return m_name; }
  [[nodiscard]] int Index() const override { return m_index; }
  /// Names the widget ("NameText", or "NameText(3)" for an element).
  void SetName(const QString& name, int index = -1);

  [[nodiscard]] const Place& Placed() const { return m_place; }
  [[nodiscard]] int Left() const { return m_place.Left; }
  [[nodiscard]] int Top() const { return m_place.Top; }
  [[nodiscard]] int Width() const { return m_place.Width; }
  [[nodiscard]] int Height() const { return m_place.Height; }
  void SetLeft(int twips);
  void SetTop(int twips);
  void SetWidth(int twips);
  void SetHeight(int twips);
  void SetPlace(const Place& place);

  [[nodiscard]] bool Visible() const override { return m_visible; }
  void SetVisible(bool visible) override;
  void SetFocus() override;
  void Unload() override;

  [[nodiscard]] Role ForeColor() const { return m_fore; }
  [[nodiscard]] Role BackColor() const { return m_back; }
  void SetForeColor(Role role);
  void SetBackColor(Role role);
  void RefreshColors() override;

 protected:
  explicit Control(QWidget* widget);
  /// Runs after the place changed and the widget has its new geometry.
  virtual void OnPlaced() {}

 private:
  friend class ControlArrayBase;
  QWidget* m_widget;
  ElementHolder* m_array = nullptr;
  QString m_name;
  int m_index = -1;
  Place m_place;
  Role m_fore = Role::Default;
  Role m_back = Role::Default;
  bool m_visible = true;
};

}  // namespace velmora::ui
