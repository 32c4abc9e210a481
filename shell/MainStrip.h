// SPDX-License-Identifier: MIT
#pragma once

#include "controls/MyToolBarCtrl.h"
#include "forms/Buttons.h"
#include "forms/ComboBox.h"
#include "forms/Labels.h"
#include "forms/TextBox.h"
#include "shell/ToolTable.h"

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QStringList>
#include <QStyle>
#include <QWidget>

#include <cstdint>

namespace velmora {

/// The strip and background under the menu, pMainPic: the room of the two toolbars, the moves between cards,
/// and the current card with its contacts. It only shows and tells; Main decides.
class MainStrip final : public QWidget {
  Q_OBJECT
  Q_PROPERTY(bool hasPicture READ HasPicture)

 public:
  explicit MainStrip(QWidget* parent);

  [[nodiscard]] MyToolBarCtrl& ShortBar() const { return *tool; }
  [[nodiscard]] MyToolBarCtrl& LongBar() const { return *ltTool; }
  void ShowCard(const QString& name, const QString& number);
  [[nodiscard]] QString CardName() const { return ClientLab->Caption(); }
  void ShowContacts(const QStringList& contacts, const QString& shown);
  [[nodiscard]] QString Contact() const { return AgentLab->Text(); }
  void ShowTelephones(const QStringList& numbers, const QString& shown);
  /// Blanks the card with its contacts.
  void BlankCard();
  void ShowTime(const QString& text) { TimeLab->SetCaption(text); }
  [[nodiscard]] QString SeekText() const { return txtSeek->Text(); }
  void EmptySeekBox() { txtSeek->SetText({}); }
  void FocusSeekBox() { txtSeek->SetFocus(); }
  [[nodiscard]] ui::Place SeekBoxPlace() const { return txtSeek->Placed(); }
  /// The background; a null picture clears it. It fills the strip, cut where the shapes differ, under as much
  /// of the window's colour as the strip's texts need.
  void SetPicture(const QPixmap& picture);
  /// The program's own background, in the colours of the present look.
  void SetDefaultPicture();
  [[nodiscard]] bool HasDefaultPicture() const { return m_isDefault; }
  [[nodiscard]] bool HasPicture() const { return !m_picture.isNull(); }
  /// The middle of the background as the icon of a screen.
  [[nodiscard]] QIcon PictureIcon() const;
  /// The program's own background.
  [[nodiscard]] static QPixmap DefaultBackground(const QPalette& palette);

 Q_SIGNALS:
  void UpClicked();
  void DownClicked();
  void SeekChanged();
  void ContactClicked();
  void NameDoubleClicked();
  void ClockClicked();

 protected:
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void SetupBars();
  MyToolBarCtrl* MakeBar(const QString& name, std::int16_t buttonSize, ToolRows tools);
  void SetupMoves();
  void SetupCard();
  void SetupContacts();
  ui::SSCommand* MakeArrow(const QString& name, QStyle::StandardPixmap arrow, int left,
                           const QString& spoken);

  void Take(const QPixmap& picture);
  [[nodiscard]] QPixmap Ground() const;

  QPixmap m_picture;
  bool m_isDefault = false;
  /// The background as it is painted; made when it is wanted.
  QPixmap m_ground;
  QColor m_veil;
  MyToolBarCtrl* tool = nullptr;
  MyToolBarCtrl* ltTool = nullptr;
  ui::SSCommand* cmdDown = nullptr;
  ui::SSCommand* cmdUp = nullptr;
  ui::TextBox* txtSeek = nullptr;
  ui::Label* NumberLab = nullptr;
  ui::Label* ClientLab = nullptr;
  ui::SSPanel* TimeLab = nullptr;
  ui::ComboBox* AgentLab = nullptr;
  ui::ComboBox* TelephonList = nullptr;
};

}  // namespace velmora
