// SPDX-License-Identifier: MIT
#include "tests/help/HelpFixture.h"

#include "forms/NoticeLabel.h"
#include "forms/Palette.h"
#include "help/HelpPage.h"
#include "help/HelpWindow.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QtTest>

namespace velmora {

using namespace Qt::StringLiterals;

HelpFixture::HelpFixture() {
  qputenv("XDG_CACHE_HOME", PathOf(u"cache"_s).toLocal8Bit());
  qputenv("XDG_CONFIG_HOME", PathOf(u"config"_s).toLocal8Bit());
  const QString running = PathOf(u"run"_s);
  QDir().mkpath(running);
  // Anything wider is not taken for a folder of the user's own.
  QFile::setPermissions(running, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  qputenv("XDG_RUNTIME_DIR", running.toLocal8Bit());
}

HelpFixture::~HelpFixture() {
  m_window.reset();
  ui::SetDarkLook(std::nullopt);
}

QString HelpFixture::Manual() { return QStringLiteral(VELMORA_MANUAL); }

QString HelpFixture::CopyOfManual(const QString& name) const {
  const QString copy = PathOf(name);
  EXPECT_TRUE(QFile::copy(Manual(), copy));
  return copy;
}

HelpWindow& HelpFixture::Show(const QString& topic) {
  if (!m_window) m_window = std::make_unique<HelpWindow>();
  QString why;
  EXPECT_TRUE(m_window->ShowTopic({.File = Manual(), .Topic = topic, .ActivationToken = {}}, why))
      << why.toStdString();
  m_window->ComeToFront({});
  QApplication::setActiveWindow(m_window.get());
  return *m_window;
}

void HelpFixture::CloseWindow() {
  m_window->close();
  m_window.reset();
}

HelpPage& HelpFixture::Page() const { return *m_window->findChild<HelpPage*>(); }

QString HelpFixture::PageName() const {
  const QUrl page = Page().source();
  return page.hasFragment() ? page.fileName() + u'#' + page.fragment() : page.fileName();
}

QString HelpFixture::NoticeText() const {
  const auto* notice = m_window->findChild<ui::NoticeLabel*>();
  return notice->isVisible() ? notice->text() : QString();
}

void HelpFixture::Trigger(const QString& action) const {
  auto* found = m_window->findChild<QAction*>(action);
  ASSERT_NE(found, nullptr) << action.toStdString();
  ASSERT_TRUE(found->isEnabled()) << action.toStdString();
  found->trigger();
}

}  // namespace velmora
