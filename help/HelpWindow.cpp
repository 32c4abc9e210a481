// SPDX-License-Identifier: MIT
#include "help/HelpWindow.h"

#include "forms/NoticeLabel.h"
#include "forms/Twips.h"
#include "help/HelpCollection.h"
#include "help/HelpPage.h"
#include "help/HelpPanel.h"
#include "resources/strings.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinter>
#include <QSettings>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int PanelShare = 2;
constexpr int PageShare = 5;
constexpr QSize firstSize(980, 700);
/// The desktop's rim round the window needs some of the rest.
constexpr double PartOfScreen = 0.92;

constexpr auto geometryKey = "Geometry"_L1;
constexpr auto stepsKey = "TextSteps"_L1;

QSettings ViewerSettings() {
  return {QSettings::IniFormat, QSettings::UserScope, u"Velmora"_s, u"velmora-help"_s};
}

QAction* Entry(QMenu& menu, const QString& name, const QString& text, const QKeySequence& keys) {
  QAction* action = menu.addAction(text);
  action->setObjectName(name);
  action->setShortcut(keys);
  return action;
}

}  // namespace

HelpWindow::HelpWindow()
    : m_halves(new QSplitter(this)), m_page(new HelpPage(m_halves)), m_notice(new ui::NoticeLabel(m_page)) {
  setObjectName(u"Help"_s);
  setWindowTitle(strings::help::Title);
  m_notice->hide();
  m_halves->setChildrenCollapsible(false);
  setCentralWidget(m_halves);
  SetupMenus();
  SetupToolBar();
  qApp->installEventFilter(this);
  connect(m_page, &QTextBrowser::sourceChanged, this, [this](const QUrl& page) {
    if (m_panel) m_panel->Follow(page);
    const QString title = m_page->documentTitle();
    setWindowTitle(title.isEmpty() ? QString(strings::help::Title) : title + strings::help::TitleBehindPage);
  });
  connect(m_page, &QTextBrowser::backwardAvailable, m_back, &QAction::setEnabled);
  connect(m_page, &QTextBrowser::forwardAvailable, m_forward, &QAction::setEnabled);
  connect(m_page, &HelpPage::TextSizeChanged, this, [this] {
    m_larger->setEnabled(m_page->TextSteps() < HelpPage::LargestStep);
    m_smaller->setEnabled(m_page->TextSteps() > HelpPage::SmallestStep);
  });
  RestorePlace();
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::SetupMenus() {
  QMenu& file = *menuBar()->addMenu(strings::help::FileMenu);
  m_print = Entry(file, u"Print"_s, strings::help::Print, QKeySequence::Print);
  connect(m_print, &QAction::triggered, this, &HelpWindow::Print);
  file.addSeparator();
  QAction* close = Entry(file, u"Close"_s, strings::help::Close, QKeySequence(u"Ctrl+W"_s));
  close->setShortcuts({QKeySequence(u"Ctrl+W"_s), QKeySequence(u"Ctrl+Q"_s), QKeySequence(u"Esc"_s)});
  connect(close, &QAction::triggered, this, &QWidget::close);

  QMenu& edit = *menuBar()->addMenu(strings::help::EditMenu);
  const QAction* copy = Entry(edit, u"Copy"_s, strings::help::Copy, QKeySequence::Copy);
  connect(copy, &QAction::triggered, m_page, &QTextBrowser::copy);
  const QAction* all = Entry(edit, u"SelectAll"_s, strings::help::SelectAll, {});
  connect(all, &QAction::triggered, m_page, &QTextBrowser::selectAll);
  SetupViewMenu(*menuBar()->addMenu(strings::help::ViewMenu));
  SetupGoMenu(*menuBar()->addMenu(strings::help::GoMenu));
}

void HelpWindow::SetupViewMenu(QMenu& menu) {
  m_larger = Entry(menu, u"Larger"_s, strings::help::Larger, QKeySequence::ZoomIn);
  // The plus is not on a key of its own on every keyboard.
  m_larger->setShortcuts({QKeySequence(u"Ctrl++"_s), QKeySequence(u"Ctrl+="_s)});
  connect(m_larger, &QAction::triggered, this, [this] { m_page->SetTextSteps(m_page->TextSteps() + 1); });
  m_smaller = Entry(menu, u"Smaller"_s, strings::help::Smaller, QKeySequence(u"Ctrl+-"_s));
  connect(m_smaller, &QAction::triggered, this, [this] { m_page->SetTextSteps(m_page->TextSteps() - 1); });
  const QAction* normal = Entry(menu, u"NormalSize"_s, strings::help::NormalSize, QKeySequence(u"Ctrl+0"_s));
  connect(normal, &QAction::triggered, this, [this] { m_page->SetTextSteps(0); });
  menu.addSeparator();
  const auto tab = [this, &menu](const QString& name, const QString& text, const QString& keys,
                                 HelpPanel::Tab which) {
    const QAction* action = Entry(menu, name, text, QKeySequence(keys));
    connect(action, &QAction::triggered, this, [this, which] {
      if (m_panel) m_panel->GoTo(which);
    });
  };
  tab(u"ShowContents"_s, strings::help::ShowContents, u"Ctrl+1"_s, HelpPanel::ContentsTab);
  tab(u"ShowIndex"_s, strings::help::ShowIndex, u"Ctrl+2"_s, HelpPanel::IndexTab);
  tab(u"ShowSearch"_s, strings::help::ShowSearch, u"Ctrl+F"_s, HelpPanel::SearchingTab);
  const QAction* side =
      Entry(menu, u"OtherSide"_s, strings::help::OtherSide, QKeySequence(static_cast<int>(Qt::Key_F6)));
  connect(side, &QAction::triggered, this, &HelpWindow::SwitchSide);
}

void HelpWindow::SetupGoMenu(QMenu& menu) {
  m_back = Entry(menu, u"Back"_s, strings::help::Back, QKeySequence(u"Alt+Left"_s));
  m_back->setShortcuts({QKeySequence(u"Alt+Left"_s), QKeySequence(u"Backspace"_s)});
  m_back->setEnabled(false);
  connect(m_back, &QAction::triggered, m_page, &QTextBrowser::backward);
  m_forward = Entry(menu, u"Forward"_s, strings::help::Forward, QKeySequence(u"Alt+Right"_s));
  m_forward->setEnabled(false);
  connect(m_forward, &QAction::triggered, m_page, &QTextBrowser::forward);
  m_contents = Entry(menu, u"FirstPage"_s, strings::help::FirstPage, QKeySequence(u"Alt+Home"_s));
  connect(m_contents, &QAction::triggered, this, [this] {
    if (m_collection) ShowPage(m_collection->ContentsPage(), {});
  });
  menu.addSeparator();
  const QAction* previous =
      Entry(menu, u"PreviousTopic"_s, strings::help::PreviousTopic, QKeySequence(u"Ctrl+PgUp"_s));
  connect(previous, &QAction::triggered, this, [this] { MoveAmongTopics(-1); });
  const QAction* next = Entry(menu, u"NextTopic"_s, strings::help::NextTopic, QKeySequence(u"Ctrl+PgDown"_s));
  connect(next, &QAction::triggered, this, [this] { MoveAmongTopics(1); });
}

void HelpWindow::SetupToolBar() {
  QToolBar* bar = addToolBar(strings::help::ToolBar);
  bar->setObjectName(u"ToolBar"_s);
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  bar->toggleViewAction()->setVisible(false);
  m_back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
  m_forward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
  bar->addActions({m_back, m_forward, m_contents, m_print, m_larger, m_smaller});
}

void HelpWindow::RestorePlace() {
  const QSettings settings = ViewerSettings();
  if (!restoreGeometry(settings.value(geometryKey).toByteArray()))
    resize((firstSize * ui::ProgramScale()).boundedTo(screen()->availableSize() * PartOfScreen));
  m_page->SetTextSteps(settings.value(stepsKey).toInt());
}

void HelpWindow::closeEvent(QCloseEvent* event) {
  QSettings settings = ViewerSettings();
  settings.setValue(geometryKey, saveGeometry());
  settings.setValue(stepsKey, m_page->TextSteps());
  QMainWindow::closeEvent(event);
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) m_notice->hide();
  return QMainWindow::eventFilter(watched, event);
}

bool HelpWindow::OpenFile(const QString& file, QString& why) {
  std::unique_ptr<HelpCollection> opened = HelpCollection::Open(file, why);
  if (!opened) return false;
  m_panel.reset();
  m_collection = std::move(opened);
  m_page->SetCollection(m_collection.get());
  m_panel = std::make_unique<HelpPanel>(*m_collection);
  m_halves->insertWidget(0, m_panel.get());
  m_halves->setStretchFactor(0, PanelShare);
  m_halves->setStretchFactor(1, PageShare);
  m_halves->setSizes(
      {width() * PanelShare / (PanelShare + PageShare), width() * PageShare / (PanelShare + PageShare)});
  setTabOrder(m_panel.get(), m_page);
  connect(m_panel.get(), &HelpPanel::PageChosen, this, &HelpWindow::ShowPage);
  return true;
}

bool HelpWindow::ShowTopic(const HelpRequest& request, QString& why) {
  const bool isOpen = m_collection && m_collection->File() == request.File;
  if (!isOpen && !OpenFile(request.File, why)) return false;
  const auto page =
      request.Topic.isEmpty() ? m_collection->ContentsPage() : m_collection->PageOf(request.Topic);
  m_notice->hide();
  ShowPage(page.value_or(m_collection->ContentsPage()), {});
  // There is no way back into another file.
  if (!isOpen) m_page->clearHistory();
  m_page->setFocus();
  m_untold = page ? QString() : QString(strings::help::UnknownTopic).arg(request.Topic);
  return true;
}

void HelpWindow::ShowPage(const QUrl& page, const QStringList& words) {
  m_page->setSource(page);
  m_page->Mark(words);
}

void HelpWindow::ComeToFront(const QString& activationToken) {
  if (!activationToken.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  // Only now the page has its place, and with it what stands under its heading.
  if (m_untold.isEmpty()) return;
  m_notice->Tell(m_untold, m_page->HeadingPlace());
  m_untold.clear();
}

void HelpWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(m_page->documentTitle());
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) m_page->PrintTo(printer);
}

void HelpWindow::MoveAmongTopics(int step) {
  if (!m_panel) return;
  const std::optional<QUrl> page = m_panel->Beside(m_page->source(), step);
  if (page) ShowPage(*page, {});
}

void HelpWindow::SwitchSide() {
  if (m_page->hasFocus() && m_panel) {
    m_panel->currentWidget()->setFocus();
  } else {
    m_page->setFocus();
  }
}

}  // namespace velmora
