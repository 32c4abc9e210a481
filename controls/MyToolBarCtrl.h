// SPDX-License-Identifier: MIT
#pragma once

#include "controls/PictureBox.h"
#include "forms/ControlArray.h"
#include "forms/ImageList.h"

#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <array>
#include <cstdint>
#include <optional>

namespace velmora {

/// A bar of picture buttons with three images each: at rest, under the pointer and pressed. Image i + 1 of
/// each list belongs to button i. A timer watches the pointer, so that the mark of the button under it goes
/// when the pointer leaves the bar.
class MyToolBarCtrl final : public QWidget, public ui::Control {
  Q_OBJECT

 public:
  /// More buttons are not supported.
  static constexpr int MostButtons = 100;

  explicit MyToolBarCtrl(QWidget* parent);

  /// Width and height of a button, in pixels at scale 1.
  std::int16_t ButtonSize = 0;
  /// The button under the pointer, -1 for none.
  std::int16_t HotButton = -1;
  /// Whether each button shows its image for the pointer.
  std::array<bool, MostButtons> HotFlags{};

  [[nodiscard]] std::int32_t count() const { return m_count; }
  /// Sets the number of buttons and makes them anew; what is beyond it stays.
  void SetCount(std::int32_t count);
  /// Images under the pointer.
  void SetImages(const ui::ImageList& images) { m_images = images; }
  /// The same, and makes the buttons anew.
  void SetImageList(const ui::ImageList& images);
  void SetImagesNorm(const ui::ImageList& images) { m_imagesNorm = images; }
  void SetImagesDown(const ui::ImageList& images) { m_imagesDown = images; }
  /// Tips for the first buttons, as many as there are of both, kept when the buttons are made anew; they are
  /// the buttons' spoken names too.
  void SetToolTipText(const QStringList& texts);

  [[nodiscard]] const ui::ControlArray<PictureBox>& mPicture() const { return m_pictures; }
  [[nodiscard]] const QTimer& mTimer() const { return m_timer; }
  /// Marks a button as the one under the pointer, -1 for none. Leaving a mark does not reset HotButton.
  void SetHot(int index);
  /// Gives the focus to the button that had it last.
  void SetFocus() override;

 Q_SIGNALS:
  /// A button was pressed and let go, or chosen by keys.
  void Click(int index);

 protected:
  void hideEvent(QHideEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  using Images = std::optional<ui::ImageList>;

  void SetupPicture(PictureBox& picture);
  void Rebuild();
  void LoadPicture(int index);
  void ShowTip(int index);
  /// A missing list, image or button leaves the old picture.
  void Show(int index, const Images& images);
  [[nodiscard]] bool IsHot(int index) const;
  void SetHotFlag(int index, bool hot);
  [[nodiscard]] bool PointerIsOff() const;
  void OnDown(int index);
  void OnUp(int index);
  void OnTimer();
  void MoveFocus(int from, int key);

  ui::ControlArray<PictureBox> m_pictures;
  QTimer m_timer;
  Images m_images;
  Images m_imagesNorm;
  Images m_imagesDown;
  QStringList m_tips;
  std::int32_t m_count = 0;
  /// Between buttons, behind the last and below the bar, in pixels at scale 1.
  std::int16_t m_buttonGap = 0;
  int m_focused = 0;
};

}  // namespace velmora
