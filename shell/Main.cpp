// SPDX-License-Identifier: MIT
#include "shell/Main.h"

#include "base/settings/Settings.h"
#include "base/system/Clock.h"
#include "base/system/Failures.h"
#include "base/system/Files.h"
#include "base/text/Numbers.h"
#include "cards/CardNavigation.h"
#include "cards/EditTable.h"
#include "cards/ShowContacts.h"
#include "cards/ShowTable.h"
#include "engine/DBEngine.h"
#include "engine/sqlite/LongWork.h"
#include "forms/ComboBox.h"
#include "forms/Labels.h"
#include "forms/TextBox.h"
#include "forms/Twips.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "shell/CardCount.h"
#include "shell/ClockText.h"
#include "shell/MainMenu.h"
#include "shell/MainStrip.h"
#include "shell/NumberEntry.h"

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QMdiArea>
#include <QShortcut>
#include <QVBoxLayout>

/// The resources of a static library are known to the program only once they are named. Qt wants that done
/// outside of any namespace.
static void NameResources() { Q_INIT_RESOURCE(velmora); }

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr int frameWidth = 9600;
constexpr int frameHeight = 7350;
constexpr int firstPaintPatience = 250;  // milliseconds
constexpr int defaultModem = 2;
constexpr int defaultTax = 17;

const QString& InitSection() {
  static const QString section = u"Init"_s;
  return section;
}

const QString& LoadSection() {
  static const QString section = u"Load"_s;
  return section;
}

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

std::int32_t WholeSetting(const QString& key, std::int32_t whenEmpty) {
  const QString text = GetSetting(InitSection(), key);
  return text.isEmpty() ? whenEmpty : LeadingWhole(text);
}

}  // namespace

Main::Main() {
  NameResources();
  setObjectName(u"Main"_s);
  setWindowTitle(strings::ProgramName);
  setWindowIcon(QIcon(u":/icons/velmora.svg"_s));
  Global().TaxPercent = WholeSetting(u"MAAM"_s, defaultTax);

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

  // A window that is uncovered during a long query or sort shows itself.
  db::SetLongWorkHook(&ui::LetRepaint);
  SetupMenu();
  m_session = std::make_unique<CardFileSession>(*this, *m_menu);
  SetupStrip();
  SetupToolbars();
  SetupKeys();
  connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    if (ui::IsRepainting()) return;
    if (state == Qt::ApplicationInactive) m_wasAway = true;
    if (state == Qt::ApplicationActive && std::exchange(m_wasAway, false) && m_loaded) Activate();
  });
}

Main::~Main() {
  db::SetLongWorkHook({});
  ui::SetFrame(nullptr, nullptr, nullptr);
}

void Main::SetupStrip() {
  connect(pMainPic, &MainStrip::UpClicked, this, [this] { StepCard(1); });
  connect(pMainPic, &MainStrip::DownClicked, this, [this] { StepCard(-1); });
  connect(pMainPic, &MainStrip::SeekChanged, this, &Main::SeekCard);
  connect(pMainPic, &MainStrip::ContactClicked, this,
          [this] { ShowContactPhones(AgentLab(), TelephonList()); });
  connect(pMainPic, &MainStrip::NameDoubleClicked, this, &Main::ClientLabDoubleClicked);
  connect(pMainPic, &MainStrip::ClockClicked, this, &Main::ToggleStopwatch);
}

void Main::Load() {
  IgnoringErrors([this] { ResLoaderMain(); });
  IgnoringErrors([this] { LoadInitSettings(); });
  RestoreSession();
  ShowFrame();
  Session& session = Global();
  // A last file that is there counts as open even if it turns out to be none: every use then fails in
  // silence.
  session.NoFile = ToFlag(ExistFile(session.FilePath) < 1);
  if (session.NoFile == False) {
    IgnoringErrors([&session] { session.CardDb = session.DBEngine().OpenDatabase(session.FilePath); });
    SetCaption(session.FilePath);
    IgnoringErrors([this] { ShowCard(); });
  }
  if (CardCountZero() == 1) NewCard();
  m_loaded = true;
  Activate();
}

void Main::LoadInitSettings() {
  Session& session = Global();
  session.ModemPort = WholeSetting(u"Modem"_s, defaultModem);
  session.IsUsa = ToFlag(!GetSetting(InitSection(), u"USA"_s).trimmed().isEmpty());
  m_session->LoadRecent();
}

void Main::RestoreSession() {
  Session& session = Global();
  const QString index = GetSetting(LoadSection(), u"Index"_s);
  session.CurCard = index.trimmed().isEmpty() ? 0 : LeadingWhole(index);
  session.FilePath = GetSetting(LoadSection(), u"Path"_s);
  session.FileTitle = GetSetting(LoadSection(), u"Name"_s);
}

void Main::ShowFrame() {
  resize(ui::Pixels(frameWidth), ui::Pixels(frameHeight));
  show();
  // The frame is on the screen before the last file is opened, however long that takes.
  QElapsedTimer waited;
  waited.start();
  while (!m_painted && waited.elapsed() < firstPaintPatience) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
  }
}

void Main::Activate() {
  if (QApplication::activeModalWidget() != nullptr) return;
  if (TutorialShown == False && Global().NoFile == True) {
    TutorialShown = True;
    ShowWelcome();
  }
  if (!isMinimized() && !isMaximized() && !isFullScreen()) {
    resize(ui::Pixels(frameWidth), ui::Pixels(frameHeight));
  }
  if (CardCountZero() == 1) NewCard();
}

void Main::ResLoaderMain() {
  const QString wallpaper = GetSetting(InitSection(), u"WallPap"_s);
  const bool wanted = LeadingWhole(GetSetting(InitSection(), u"UseBackground"_s, u"1"_s)) != 0;
  if (!wanted || wallpaper == u"(none)"_s) {
    pMainPic->SetPicture({});
  } else if (wallpaper == u"(default)"_s) {
    pMainPic->SetPicture(MainStrip::DefaultBackground(palette()));
  } else {
    pMainPic->SetPicture(QPixmap(wallpaper));
  }
}

bool Main::Unload() {
  // Nothing typed is lost without a question: each card screen closes as by its own close box.
  for (const QStringView name : {QStringView(u"EditTable"), QStringView(u"ShowTable")}) {
    if (ui::Screen* screen = ui::FindScreen(name); screen != nullptr && !screen->Unload()) return false;
  }
  QuitByToolbar();
  return true;
}

void Main::QuitByToolbar() {
  // Gone at once, however long the compaction takes.
  hide();
  m_session->QuitAndCompact();
}

void Main::ShowCard() {
  RepaintMain();
  const ui::Hourglass hourglass;
  txtSeek().SetText({});
  if (!OpenWithCards()) return;
  UnloadOtherForms();
  ui::Default<ShowTable>().Show();
}

void Main::NewCard() {
  RepaintMain();
  if (Global().NoFile != False) return;
  ClearpMainPic();
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

void Main::UnloadOtherForms() {
  const ui::ActivationPause pause;
  qsizetype index = 1;
  for (qsizetype left = ui::Forms().size(); left > 0; --left) {
    if (index >= ui::Forms().size()) continue;
    if (index == 1 && ui::Forms().at(1)->ScreenName() == objectName()) {
      ++index;
      continue;
    }
    ui::Yield();
    if (index < ui::Forms().size()) IgnoringErrors([index] { ui::Forms().at(index)->Unload(); });
    ui::Yield();
  }
}

void Main::RepaintMain() { repaint(); }

int Main::CardCountZero() {
  return velmora::CardCountZero([this] {
    NumberLab().SetCaption({});
    ClientLab().SetCaption({});
    TelephonList().Clear();
    AgentLab().Clear();
  });
}

void Main::ClearpMainPic() {
  NumberLab().SetCaption({});
  ClientLab().SetCaption({});
  pMainPic->Clock().SetCaption({});
  txtSeek().SetText({});
  AgentLab().Clear();
  TelephonList().Clear();
}

bool Main::OpenWithCards() { return Global().NoFile == False && CardCountZero() == 0; }

void Main::StepCard(std::int32_t step) {
  // There is no card beyond the largest number.
  const std::int64_t asked = std::int64_t{Global().CurCard} + step;
  if (std::in_range<std::int32_t>(asked)) SetWin(static_cast<std::int32_t>(asked), GetActive());
  txtSeek().SetText({});
}

void Main::SeekCard() {
  const NumberEntry entry = ReadNumberEntry(txtSeek().Text());
  if (entry.Clear) txtSeek().SetText({});
  if (entry.Card) SetWin(*entry.Card, GetActive());
}

void Main::DelCard() {
  DeleteCurrentCard([this] { StepCard(1); });
}

void Main::ToggleStopwatch() {
  if (StopwatchOn == False) {
    StopwatchStart = Clock::Now().time();
    StopwatchOn = True;
  } else {
    StopwatchOn = False;
  }
}

void Main::UpdateClock() {
  pMainPic->Clock().SetCaption(StopwatchOn != False ? StopwatchText(Clock::Now().time(), StopwatchStart)
                                                    : ClockText(Clock::Now().time()));
}

void Main::ClientLabDoubleClicked() {
  UnloadOtherForms();
  ui::Yield();
  ui::Yield();
  if (OpenWithCards()) ShowQuickSearch();
}

void Main::SetCaption(const QString& caption) { setWindowTitle(caption); }
void Main::EnableDelCard(bool enabled) { m_menu->Entry(u"DelCard"_s).setEnabled(enabled); }
ui::Label& Main::ClientLab() { return pMainPic->CardName(); }
ui::Label& Main::NumberLab() { return pMainPic->CardNumber(); }
ui::ComboBox& Main::AgentLab() { return pMainPic->Contacts(); }
ui::ComboBox& Main::TelephonList() { return pMainPic->Telephones(); }
ui::TextBox& Main::txtSeek() { return pMainPic->Seek(); }
QString Main::GetDirectoryProg() { return ProgramDir(); }

void Main::closeEvent(QCloseEvent* event) { event->setAccepted(!ui::IsRepainting() && Unload()); }

void Main::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  m_painted = true;
}

}  // namespace velmora
