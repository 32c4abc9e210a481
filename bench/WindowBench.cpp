// SPDX-License-Identifier: MIT
// Steps through the cards in the program's own window, key to painted, beside the bare lookup and the same
// texts set into as many plain boxes. The ten-thousandth step must cost what the first ones do.
#include "cardfile/CardFileSchema.h"
#include "cardfile/MakeCardFile.h"
#include "engine/Database.h"
#include "engine/sqlite/SqliteHandle.h"
#include "forms/ProgramLook.h"
#include "frame/Session.h"
#include "shell/Main.h"
#include "shell/SettingTable.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <vector>

namespace velmora::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int Steps = 10'000;
/// As many steps as one figure is taken from.
constexpr int Sample = 100;
constexpr int FieldsOnPage = MaxFields / MaxPages;
constexpr double Microsecond = 1000.0;

FieldKind KindOf(int field) {
  switch (field % FieldsOnPage) {
    case 7:
      return FieldKind::Number;
    case 8:
      return FieldKind::YesNo;
    case 9:
      return FieldKind::Date;
    default:
      return FieldKind::Text;
  }
}

QString ValueSql(db::FieldType type, int column) {
  switch (type) {
    case db::FieldType::Double:
      return u"N / 4.0"_s;
    case db::FieldType::YesNo:
      return u"-(N % 2)"_s;
    case db::FieldType::Date:
      return u"'2024-01-' || (10 + N % 20)"_s;
    default:
      return u"'value ' || (N * %1 % 997)"_s.arg(column);
  }
}

/// A card file with all fields that a card may have, and a card more than there are steps.
void MakeCards(const QString& path) {
  CardDesign design{.MainField = u"Company"_s, .Pages = {}};
  for (int field = 0; field < MaxFields; ++field) {
    design.Pages.at(static_cast<std::size_t>(field / FieldsOnPage))
        .Fields.push_back({.Name = u"Field %1"_s.arg(field + 1), .Kind = KindOf(field)});
  }
  MakeCardFile(path, design);
  QStringList values;
  int column = 0;
  for (const db::Field& field : MainDataTable(design).Fields)
    values += field.Name == schema::CardNumber.View() ? u"N"_s : ValueSql(field.Type, ++column);
  Global().File().Close();
  const db::ConnectionHandle bare = db::OpenConnection(path, SQLITE_OPEN_READWRITE);
  db::Run(bare.get(),
          u"WITH RECURSIVE C(N) AS (SELECT 1 UNION ALL SELECT N + 1 FROM C WHERE N <= %1) "
          "INSERT INTO MainData SELECT %2 FROM C"_s.arg(Steps)
              .arg(values.join(u", ")));
  Global() = Session();
}

/// Sees a window painted.
class PaintWatch final : public QObject {
 public:
  explicit PaintWatch(QWidget& window) : QObject(&window) { window.installEventFilter(this); }
  void WaitForPaint() {
    m_painted = false;
    while (!m_painted) QCoreApplication::processEvents();
  }
  bool eventFilter(QObject* /*window*/, QEvent* event) override {
    m_painted = m_painted || event->type() == QEvent::Paint;
    return false;
  }

 private:
  bool m_painted = false;
};

using Times = std::vector<qint64>;

template <typename Step>
Times TimesOf(Step&& step) {
  Times times;
  times.reserve(Steps);
  for (int i = 0; i < Steps; ++i) {
    QElapsedTimer timer;
    timer.start();
    step();
    times.push_back(timer.nsecsElapsed());
  }
  return times;
}

double Median(std::span<const qint64> times) {
  std::vector<qint64> sorted(times.begin(), times.end());
  std::ranges::sort(sorted);
  return static_cast<double>(sorted[sorted.size() / 2]) / Microsecond;
}

/// The last steps up to that one.
double UpTo(const Times& times, std::size_t step) {
  return Median(std::span(times).subspan(step - Sample, Sample));
}

/// By the strip's button for the next card, as the space key works it.
Times InTheWindow(const QString& path) {
  Write(settings::LastPath, path);
  Write(settings::LastCard, 1);
  Main frame;
  frame.Load();
  QCoreApplication::processEvents();
  auto* next = frame.findChild<QWidget*>(u"cmdUp"_s);
  auto* viewer = frame.findChild<QWidget*>(u"ShowTable"_s);
  if (next == nullptr || viewer == nullptr) std::abort();
  PaintWatch watch(*viewer);
  const Times times = TimesOf([&] {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent key(type, Qt::Key_Space, Qt::NoModifier, u" "_s);
      QCoreApplication::sendEvent(next, &key);
    }
    watch.WaitForPaint();
  });
  if (Global().CurCard != Steps + 1) std::abort();
  return times;
}

/// The same row by SQLite alone, its texts in boxes of which as many are in view as on a card's page.
Times BesideIt(const QString& path) {
  const db::ConnectionHandle bare = db::OpenConnection(path, SQLITE_OPEN_READONLY);
  const auto statement = db::Prepare(bare.get(), u"SELECT * FROM MainData WHERE \"Index@\" = ?1");
  QWidget window;
  auto* grid = new QGridLayout(&window);
  std::vector<QLineEdit*> boxes;
  for (int column = 0; column < sqlite3_column_count(statement.get()); ++column) {
    boxes.push_back(new QLineEdit(&window));
    boxes.back()->setVisible(column <= FieldsOnPage);
    if (column <= FieldsOnPage) grid->addWidget(boxes.back());
  }
  window.show();
  QCoreApplication::processEvents();
  PaintWatch watch(window);
  int number = 1;
  return TimesOf([&] {
    sqlite3_bind_int(statement.get(), 1, ++number);
    if (sqlite3_step(statement.get()) != SQLITE_ROW) std::abort();
    int column = 0;
    for (QLineEdit* box : boxes) {
      box->setText(
          QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), column++))));
    }
    sqlite3_reset(statement.get());
    window.update();
    watch.WaitForPaint();
  });
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) {
  using namespace velmora;
  using namespace velmora::bench;
  const QTemporaryDir folder;
  qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ui::ApplyProgramLook(application);
  const QString path = folder.filePath(QStringLiteral("cards.ddb"));
  MakeCards(path);
  const Times window = InTheWindow(path);
  const Times bare = BesideIt(path);
  const double first = UpTo(window, Sample);
  std::printf("next card, key to painted       %8.0f us\n", Median(window));
  std::printf("lookup and setting the texts    %8.0f us\n", Median(bare));
  std::printf("ratio                           %8.2f\n", Median(window) / Median(bare));
  std::printf("step 1,000 / the first steps    %8.2f\n", UpTo(window, 1000) / first);
  std::printf("step 10,000 / the first steps   %8.2f\n", UpTo(window, Steps) / first);
  return 0;
}
