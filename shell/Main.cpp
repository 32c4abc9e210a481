// SPDX-License-Identifier: MIT
#include "shell/Main.h"

#include "base/system/Failures.h"
#include "base/system/Files.h"
#include "base/text/Numbers.h"
#include "cards/CardNavigation.h"
#include "cards/EditTable.h"
#include "cards/ShowTable.h"
#include "engine/sqlite/LongWork.h"
#include "forms/ActivationPause.h"
#include "forms/Default.h"
#include "forms/FormManager.h"
#include "forms/Hourglass.h"
#include "forms/Notice.h"
#include "forms/Twips.h"
#include "forms/Waiting.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "shell/CardCount.h"
#include "shell/CardFileSession.h"
#include "shell/Commands.h"
#include "shell/EditCommand.h"
#include "shell/FocusRound.h"
#include "shell/HelpKey.h"
#include "shell/MainMenu.h"
#include "shell/MainStrip.h"
#include "shell/MenuTable.h"
#include "shell/Programs.h"
#include "shell/ScreenOpeners.h"
#include "shell/SettingTable.h"
#include "shell/StripCommands.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMdiArea>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

/// The resources of a static library are known to the program only once they are named. Qt wants that done
/// outside of any namespace.
static void NameResources() { Q_INIT_RESOURCE(velmora); }

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int frameWidth = 9600;
constexpr int frameHeight = 7350;
constexpr int firstPaintPatience = 250;  // milliseconds

struct ActiveName {
  QStringView Name;
  int Code;
};

// Some of these screens belong to features that this program does not have; they never match.
constexpr auto activeNames = std::to_array<ActiveName>({{u"ShowTable", ActiveShowTable},
                                                        {u"Telefon", 3},
                                                        {u"Dial", 4},
                                                        {u"Meet", 5},
                                                        {u"Agent", 6},
                                                        {u"ListTelephone", 7},
                                                        {u"fQSearch", ActiveQuickSearch},
                                                        {u"Search", ActiveSearch},
                                                        {u"frmPrintFile", 10},
                                                        {u"frmSendEmail", 11}});

}  // namespace

Main::Main() {
  NameResources();
  setObjectName(u"Main"_s);
  setWindowTitle(strings::ProgramName);
  setWindowIcon(QIcon(u":/icons/velmora.svg"_s));
  Global().TaxPercent = Read(settings::TaxPercent);
  SetupScreens();
  SetupCommands();
  SetupKeys();
  connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    if (ui::IsRepainting()) return;
    if (state == Qt::ApplicationInactive) m_wasAway = true;
    if (state == Qt::ApplicationActive && std::exchange(m_wasAway, false) && m_loaded) Activate();
  });
}

Main::~Main() {
  db::SetLongWorkHook({});
  ui::SetNoticeStrip(nullptr);
  ui::SetFrame(nullptr, nullptr, nullptr);
}

void Main::SetupScreens() {
  auto* inner = new QWidget(this);
  auto* rows = new QVBoxLayout(inner);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  pMainPic = new MainStrip(inner);
  m_area = new QMdiArea(inner);
  m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  m_area->setBackground(palette().brush(QPalette::Mid));
  rows->addWidget(pMainPic);
  rows->addWidget(m_area, 1);
  setCentralWidget(inner);
  ui::SetFrame(this, this, m_area);
  ui::SetNoticeStrip(pMainPic);
  // A window that is uncovered during a long query or sort shows itself.
  db::SetLongWorkHook(&ui::LetRepaint);
}

void Main::SetupCommands() {
  m_menu = new MainMenu(
      menuBar(), [this](Command command) { m_commands->Run(command); },
      [this](int place) { m_session->OpenRecent(place); });
  KeepSelectionUnder(*menuBar());
  m_session = std::make_unique<CardFileSession>(*this, *m_menu);
  m_commands = std::make_unique<Commands>(
      *this, *m_session,
      Commands::WindowDoings{.Quit = [this] { Unload(); }, .Minimise = [this] { showMinimized(); }});
  m_stripCommands = new StripCommands(*this, *pMainPic);
  connect(&pMainPic->ShortBar(), &MyToolBarCtrl::Click, this,
          [this](int index) { m_commands->Press(ShortTools(), index); });
  connect(&pMainPic->LongBar(), &MyToolBarCtrl::Click, this,
          [this](int index) { m_commands->Press(LongTools(), index); });
}

void Main::SetupKeys() {
  const auto move = [this](const QKeySequence& keys, int step) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this,
            [this, step] { MoveFocusRound(*pMainPic, focusWidget(), step); });
  };
  move(QKeySequence(Qt::Key_F6), 1);
  move(QKeySequence(Qt::SHIFT | Qt::Key_F6), -1);
  new HelpKey(this);
}

void Main::Load(const QString& file) {
  IgnoringErrors([this] { ResLoaderMain(); });
  IgnoringErrors([this] { LoadInitSettings(); });
  RestoreSession(file);
  ShowFrame();
  OpenLastFile();
  if (!file.isEmpty()) {
    if (Global().NoFile != False) {
      ui::Notify(QString(strings::file::Missing).arg(file), ui::NoticeLife::UntilKey);
    } else if (Global().CardDb != nullptr) {
      RememberFile();
    }
  }
  if (CardCountZero() == 1) NewCard();
  m_loaded = true;
  Activate();
}

void Main::OpenLastFile() {
  Session& session = Global();
  // A last file that is there counts as open even if it turns out to be none: every use then fails in
  // silence.
  session.NoFile = ToFlag(ExistFile(session.FilePath) < 1);
  if (session.NoFile != False) return;
  m_session->OpenLastFile();
  SetCaption(session.FilePath);
  IgnoringErrors([this] { ShowCard(); });
}

void Main::LoadInitSettings() {
  Session& session = Global();
  session.ModemPort = Read(settings::ModemPort);
  session.IsUsa = ToFlag(Read(settings::InsideUsa));
  m_session->LoadRecent();
}

void Main::RestoreSession(const QString& file) {
  Session& session = Global();
  if (!file.isEmpty()) {
    session.CurCard = 1;
    session.FilePath = file;
    session.FileTitle = QFileInfo(file).fileName();
    return;
  }
  session.CurCard = Read(settings::LastCard);
  session.FilePath = Read(settings::LastPath);
  session.FileTitle = Read(settings::LastTitle);
}

void Main::ShowFrame() {
  TakeSize();
  show();
  // The frame is on the screen before the last file is opened, however long that takes.
  QElapsedTimer waited;
  waited.start();
  while (!m_painted && waited.elapsed() < firstPaintPatience) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
  }
}

void Main::TakeSize() {
  // What the window manager draws round the frame has to be in sight too.
  const QSize room = screen()->availableSize() - (frameSize() - size());
  resize(QSize(ui::Pixels(frameWidth), ui::Pixels(frameHeight)).boundedTo(room));
}

void Main::Activate() {
  if (QApplication::activeModalWidget() != nullptr) return;
  if (TutorialShown == False && Global().NoFile == True) {
    TutorialShown = True;
    OpenWelcome(*m_session, [this] { file_new_Click(); });
  }
  if (!isMinimized() && !isMaximized() && !isFullScreen()) TakeSize();
  if (CardCountZero() == 1) NewCard();
}

void Main::ResLoaderMain() {
  const QString wallpaper = Read(settings::Wallpaper);
  if (!Read(settings::UseBackground) || wallpaper.isEmpty() || wallpaper == settings::NoWallpaper) {
    pMainPic->SetPicture({});
  } else if (wallpaper == settings::DefaultWallpaper) {
    pMainPic->SetDefaultPicture();
  } else if (const QPixmap picture(wallpaper); !picture.isNull()) {
    // One that cannot be loaded leaves what is there.
    pMainPic->SetPicture(picture);
  }
}

QIcon Main::ScreenIcon() const {
  // The program's own background stands for the program.
  return pMainPic->HasPicture() && !pMainPic->HasDefaultPicture() ? pMainPic->PictureIcon() : windowIcon();
}

bool Main::Unload() {
  // Nothing typed is lost without a question.
  if (!CloseCardScreens()) return false;
  // Gone at once, however long the compaction takes.
  hide();
  m_session->QuitAndCompact();
  return true;
}

bool Main::CloseCardScreens() {
  for (const QStringView name : {QStringView(u"EditTable"), QStringView(u"ShowTable")}) {
    if (ui::Screen* screen = ui::FindScreen(name); screen != nullptr && !screen->Unload()) return false;
  }
  return true;
}

void Main::ShowCard() {
  RepaintMain();
  const ui::Hourglass hourglass;
  EmptySeekBox();
  if (OpenWithCards() && UnloadOtherForms()) ui::Default<ShowTable>().Show();
}

void Main::NewCard() {
  RepaintMain();
  if (Global().NoFile != False) return;
  ClearpMainPic();
  // It has the last word on the strip's labels.
  CardCountZero();
  ui::Default<EditTable>().Show();
}

void Main::SetWin(std::int32_t card, int active) {
  if (active == ActiveShowTable) {
    ui::Default<ShowTable>().ShowIndex(card);
  } else {
    GoToCard(card);
  }
}

int Main::GetActive() const {
  const ui::Form* child = ui::ActiveChild();
  if (child == nullptr) return ActiveNone;
  const auto found =
      std::ranges::find(activeNames, child->ScreenName(), [](const ActiveName& row) { return row.Name; });
  return found == activeNames.end() ? ActiveNone : found->Code;
}

bool Main::UnloadOtherForms() {
  const ui::ActivationPause pause;
  bool allGone = true;
  // The frame itself stands at 0. A screen that closes leaves its place to the next one; one that stays keeps
  // its own and is passed over, so that it asks once and no more. There are as many rounds as there were
  // screens, the frame's own among them: what a closing screen brings up is closed too, but no two screens
  // that bring up each other keep the sweep going.
  qsizetype place = 1;
  for (qsizetype rounds = ui::Forms().size(); rounds > 0 && place < ui::Forms().size(); --rounds) {
    ui::Yield();
    const ui::Screen* screen = ui::Forms().value(place);
    IgnoringErrors([place] {
      if (place < ui::Forms().size()) ui::Forms().at(place)->Unload();
    });
    if (screen != nullptr && ui::Forms().value(place) == screen) {
      allGone = false;
      ++place;
    }
    ui::Yield();
  }
  return allGone && Global().CardChanged == False;
}

void Main::RepaintMain() { repaint(); }

int Main::CardCountZero() {
  return velmora::CardCountZero([this] { BlankCard(); });
}

void Main::ClearpMainPic() {
  BlankCard();
  pMainPic->ShowTime({});
  EmptySeekBox();
}

void Main::WhatWasCmdEditFieldsClick() {
  const ui::Hourglass hourglass;
  RepaintMain();
  if (UnloadOtherForms() && OpenWithCards()) OpenFieldEditor();
}

void Main::ShowQuickSearch() { OpenQuickSearch(); }
void Main::SearchSimilarNames(const QString& word) { OpenSimilarNames(word); }
void Main::ShowValueList(CardScreen owner) { OpenValueList(owner); }
void Main::ShowHelpTopic(int number) { OpenHelpTopic(number); }
void Main::EnableDelCard(bool enabled) { m_menu->Entry(DeleteCardEntry).setEnabled(enabled); }

void Main::ShowInStrip(const QString& cardName, std::int32_t card) {
  pMainPic->ShowCard(cardName, CardNumberText(card));
}

QString Main::NameInStrip() const { return pMainPic->CardName(); }
void Main::BlankCard() { pMainPic->BlankCard(); }

void Main::ShowContactList(const QStringList& contacts, const QString& shown) {
  pMainPic->ShowContacts(contacts, shown);
}

void Main::ShowTelephones(const QStringList& numbers, const QString& shown) {
  pMainPic->ShowTelephones(numbers, shown);
}

void Main::EmptySeekBox() { pMainPic->EmptySeekBox(); }
ui::Place Main::SeekBoxPlace() const { return pMainPic->SeekBoxPlace(); }

void Main::RememberFile() { m_session->RememberFile(); }

void Main::CreateData() { m_session->CreateData(); }
QString Main::GetDirectoryProg() { return ProgramDir(); }
void Main::file_new_Click() { m_commands->New(); }
void Main::UpdateClock() { m_stripCommands->UpdateClock(); }

void Main::closeEvent(QCloseEvent* event) { event->setAccepted(!ui::IsRepainting() && Unload()); }

void Main::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  m_painted = true;
}

}  // namespace velmora
