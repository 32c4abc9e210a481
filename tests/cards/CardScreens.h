// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/Clock.h"
#include "cards/EditTable.h"
#include "cards/ShowTable.h"
#include "cards/frmReminder.h"
#include "forms/Default.h"
#include "forms/MaskEdBox.h"
#include "forms/Screen.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "tests/support/CardFiles.h"
#include "tests/support/FakeFrame.h"
#include "tests/support/Messages.h"

#include <QMdiSubWindow>
#include <QPointer>
#include <QTimer>
#include <QtTest>

#include <gtest/gtest.h>

namespace velmora::test {

using namespace Qt::StringLiterals;

/// Card screens in a frame, over a real card file. The frame does what the real one does when a screen asks
/// for a card, a new card or the search.
class CardScreensTest : public testing::Test {
 protected:
  CardScreensTest() {
    FailOnUnexpectedMessages();
    Clock::Set([] { return QDateTime(QDate(2024, 5, 15), QTime(10, 30)); });
  }
  ~CardScreensTest() override {
    // What a test leaves open goes without a word.
    ui::SetMsgBoxResponder([](const ui::Message&) { return ui::MsgAnswer::No; });
    if (frame != nullptr) frame->OnCall = {};
    for (CardForm* form : {static_cast<CardForm*>(m_viewer), static_cast<CardForm*>(m_editor)}) {
      if (form == nullptr) continue;
      form->NameRecord->SetText(u"x"_s);
      form->Unload();
    }
    frame.reset();
    file.reset();
    Clock::Set({});
    ui::SetMsgBoxResponder({});
    ui::SetFileDialogResponder({});
  }

  void Make(const ACardFile& design) {
    file = std::make_unique<CardFile>(design.Design());
    frame = std::make_unique<FakeFrame>();
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
  }
  /// Lets the frame answer as the program's own does.
  void Connect() {
    frame->OnCall = [this](const QString& call) {
      if (call == u"ShowCard" && frame->CardCountZero() == 0) {
        frame->UnloadOtherForms();
        OpenViewer();
      }
      if (call == u"NewCard") OpenEditor();
      if (call.startsWith(u"SearchSimilarNames")) ui::ActiveChild()->Unload();
    };
  }
  ShowTable& OpenViewer() {
    m_viewer = &ui::Default<ShowTable>();
    m_viewer->Show();
    return *m_viewer;
  }
  ShowTable& OpenViewer(std::int32_t card) {
    Global().CurCard = card;
    return OpenViewer();
  }
  EditTable& OpenEditor() {
    m_editor = &ui::Default<EditTable>();
    m_editor->Show();
    return *m_editor;
  }
  template <typename T>
  [[nodiscard]] static T* OpenScreen() {
    for (ui::Screen* screen : ui::Forms()) {
      if (auto* found = dynamic_cast<T*>(screen)) return found;
    }
    return nullptr;
  }

  template <typename T>
  [[nodiscard]] static T& Find(const QWidget& screen, const QString& name) {
    T* found = screen.findChild<T*>(name);
    if (found == nullptr) throw std::runtime_error("no control " + name.toStdString());
    return *found;
  }
  [[nodiscard]] static ui::SSCommand& Button(const QWidget& screen, const QString& name) {
    return Find<ui::SSCommand>(screen, name);
  }
  [[nodiscard]] static ui::TextBox& Box(const QWidget& screen, const QString& name) {
    return Find<ui::TextBox>(screen, name);
  }
  /// A click as a person makes it: all that went before is over.
  static void Click(QWidget& widget) {
    QApplication::processEvents();
    QTest::mouseClick(&widget, Qt::LeftButton);
  }
  static void Press(const QWidget& screen, const QString& button) { Click(Button(screen, button)); }
  static void PressPage(const CardForm& screen, int page) { Click(screen.Tab[page - 1]); }
  static void Type(ui::TextBox& box, const QString& text) {
    box.SetFocus();
    box.selectAll();
    if (text.isEmpty()) {
      QTest::keyClick(&box, Qt::Key_Delete);
    } else {
      QTest::keyClicks(&box, text);
    }
  }
  static void TypeDate(DateCtrl& date, const QString& text) { Type(*date.DateVal(), text); }
  static void PressTab(QWidget& widget) { QTest::keyClick(&widget, Qt::Key_Tab); }
  /// Clicks a date and works on the dialog that comes; a dialog that is still open then is closed.
  static void InReminder(DateCtrl& date, const std::function<void(frmReminder&)>& work) {
    bool came = false;
    QTimer::singleShot(0, &date, [&] {
      QPointer<frmReminder> dialog = OpenScreen<frmReminder>();
      if (!dialog) return;
      came = dialog->isVisible();
      work(*dialog);
      if (dialog && !dialog->IsClosing()) dialog->Unload();
    });
    QTest::mouseClick(date.DateVal(), Qt::LeftButton);
    EXPECT_TRUE(came) << "no dialog came";
  }
  [[nodiscard]] QString Column(std::int32_t card, const QString& column) const {
    const auto row =
        file->Database().OpenRecordset(u"Select * from MainData Where [Index@] = %1"_s.arg(card));
    return row.AtEnd() ? u"no card"_s : row[column].TextOr(u"Null"_s);
  }
  [[nodiscard]] QStringList Reminders() const { return file->Rows(u"TableDatesRemainder"_s); }

  std::unique_ptr<CardFile> file;
  std::unique_ptr<FakeFrame> frame;

 private:
  QPointer<ShowTable> m_viewer;
  QPointer<EditTable> m_editor;
};

}  // namespace velmora::test
