// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Control.h"

#include <QList>
#include <QString>

#include <functional>
#include <map>
#include <stdexcept>

class QWidget;

namespace velmora::ui {

/// The part of a control array that does not depend on the kind of its elements.
class ControlArrayBase : public ElementHolder {
 public:
  ControlArrayBase(const ControlArrayBase&) = delete;
  ControlArrayBase& operator=(const ControlArrayBase&) = delete;

  [[nodiscard]] const QString& Name() const { return m_name; }
  [[nodiscard]] bool Has(int index) const { return m_elements.contains(index); }
  [[nodiscard]] int Count() const { return static_cast<int>(m_elements.size()); }
  /// The widgets of the elements in the order of their numbers.
  [[nodiscard]] QList<QWidget*> Widgets() const;
  /// Takes an element out; its widget is hidden now and freed by deleteLater. Element 0 stays: nothing
  /// happens. Throws std::out_of_range when there is no such element.
  void Unload(int index) override;

 protected:
  explicit ControlArrayBase(QString name) : m_name(std::move(name)) {}
  virtual ~ControlArrayBase();
  void Enter(Control* element, int index);
  [[nodiscard]] Control& ElementAt(int index) const;
  std::map<int, Control*> m_elements;

 private:
  QString m_name;
};

/// Controls of one name told apart by an element number, loaded and unloaded at run time, with holes. Element
/// 0 exists from the start. The widgets belong to the parent widget; the array must not outlive it unused.
template <typename T>
class ControlArray final : public ControlArrayBase {
 public:
  /// `setup` connects and dresses each element, element 0 too, after it has its name.
  ControlArray(QWidget* parent, const QString& name, std::function<void(T&)> setup = {})
      : ControlArrayBase(name), m_parent(parent), m_setup(std::move(setup)) {
    Make(0);
  }

  /// Makes element `index`, hidden, at the place and size of element 0. Throws std::logic_error when it
  /// exists.
  T& Load(int index) {
    if (Has(index)) throw std::logic_error("control array element is already loaded");
    T& element = Make(index);
    element.SetPlace((*this)[0].Placed());
    element.SetVisible(false);
    return element;
  }
  /// The element, which is loaded when it does not exist yet.
  T& LoadOnce(int index) { return Has(index) ? (*this)[index] : Load(index); }
  /// Throws std::out_of_range when there is no such element.
  [[nodiscard]] T& operator[](int index) const { return static_cast<T&>(ElementAt(index)); }
  /// Walks the elements in the order of their numbers.
  void ForEach(const std::function<void(T&)>& visit) const {
    for (const auto& [index, element] : m_elements) visit(static_cast<T&>(*element));
  }

 private:
  T& Make(int index) {
    auto* element = new T(m_parent);
    Enter(element, index);
    if (m_setup) m_setup(*element);
    return *element;
  }
  QWidget* m_parent;
  std::function<void(T&)> m_setup;
};

}  // namespace velmora::ui
