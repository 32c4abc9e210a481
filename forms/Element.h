// SPDX-License-Identifier: MIT
#pragma once

namespace velmora::ui {

/// What an element that was loaded at run time belongs to.
class ElementHolder {
 public:
  /// Takes the element of that number out and destroys it once no handler of it runs.
  virtual void Unload(int index) = 0;

 protected:
  ~ElementHolder() = default;
};

/// What a paged screen needs of a control: its element number, whether it shows, the focus, and an end.
class Element {
 public:
  virtual ~Element() = default;
  /// The element number within its control array; -1 for a control that stands alone.
  [[nodiscard]] virtual int Index() const = 0;
  /// Whether it is to show, be its screen open or not.
  [[nodiscard]] virtual bool Visible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual void SetFocus() = 0;
  /// Takes an element that was loaded at run time out of its array and destroys it once no handler of it
  /// runs. Element 0 and controls that stand alone cannot be unloaded: nothing happens.
  virtual void Unload() = 0;
};

}  // namespace velmora::ui
