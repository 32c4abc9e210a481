// SPDX-License-Identifier: MIT
#include "tests/shell/RealFrame.h"

#include "frame/Session.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QtTest>

namespace velmora {

using namespace Qt::StringLiterals;

QString RealFrame::MakeFile(const QString& name, const test::ACardFile& design,
                            const std::function<void(const test::CardFile&)>& fill) {
  const Session before = Global();
  {
    const test::CardFile file = design.Make();
    fill(file);
    EXPECT_TRUE(QFile::copy(file.Path(), PathOf(name)));
  }
  Global() = before;
  return PathOf(name);
}

Main& RealFrame::RunOn(const QString& path, int card) {
  Main& frame = StartOn(path, card);
  QApplication::setActiveWindow(&frame);
  return frame;
}

Main& RealFrame::RunAgain() {
  Main& frame = Start();
  QApplication::setActiveWindow(&frame);
  return frame;
}

QWidget& RealFrame::Screen(const QString& name) {
  auto* screen = dynamic_cast<QWidget*>(ui::FindScreen(name));
  if (screen == nullptr) throw std::logic_error("no screen " + name.toStdString());
  return *screen;
}

QString RealFrame::TextOf(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
  if (const auto* line = qobject_cast<const QLineEdit*>(&control)) return line->text();
  if (const auto* memo = qobject_cast<const QPlainTextEdit*>(&control)) return memo->toPlainText();
  if (const auto* list = qobject_cast<const QComboBox*>(&control)) return list->currentText();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
  throw std::logic_error("no text in " + control.objectName().toStdString());
}

void RealFrame::Click(QWidget& widget) {
  QApplication::processEvents();
  QTest::mouseClick(&widget, Qt::LeftButton);
}

void RealFrame::ClickTool(const QString& bar, int index) const {
  Click(*Find<QWidget>(bar).findChild<QWidget*>(u"mPicture(%1)"_s.arg(index)));
}

void RealFrame::Type(const QString& screen, const QString& box, const QString& text) const {
  QApplication::setActiveWindow(Screen(screen).window());
  auto& line = In<QLineEdit>(screen, box);
  line.setFocus();
  ASSERT_TRUE(line.hasFocus());
  line.selectAll();
  QTest::keyClick(&line, Qt::Key_Delete);
  QTest::keyClicks(&line, text);
}

void RealFrame::InDialog(const QString& dialog, const std::function<void()>& open,
                         const std::function<void()>& work) const {
  bool came = false;
  QTimer waiting;
  QObject::connect(&waiting, &QTimer::timeout, &waiting, [&] {
    if (ui::FindScreen(dialog) == nullptr) return;
    waiting.stop();
    came = true;
    work();
    if (ui::Screen* left = ui::FindScreen(dialog); left != nullptr) {
      ADD_FAILURE() << "the dialog is still open";
      left->Unload();
    }
  });
  waiting.start();
  open();
  EXPECT_TRUE(came) << "no dialog came";
  // What a window manager does when a dialog has gone.
  QApplication::setActiveWindow(m_main.get());
}

QStringList RealFrame::RowsOf(const QString& path, const QString& source) {
  QStringList found;
  try {
    const auto file = db::DBEngine().OpenDatabase(path);
    for (db::Recordset rows = file->OpenRecordset(source); !rows.AtEnd(); rows.MoveNext()) {
      QStringList values;
      for (int i = 0; i < rows.FieldCount(); ++i) values += rows.At(i).TextOr(u"Null"_s);
      found += values.join(u'|');
    }
  } catch (const db::Error&) {
    return {u"fails"_s};
  }
  return found;
}

}  // namespace velmora
