// SPDX-License-Identifier: MIT
// The viewer in the real frame, from card to card.
#include "tests/shell/RealFrame.h"
#include "tests/support/Messages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

#include <map>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;
using test::CardFile;

const QString viewer = u"ShowTable"_s;

/// What each control of a card says, by its name.
using Shown = std::map<QString, QString>;

class RealFrameCardTest : public RealFrame {
 protected:
  /// Two pages with every kind of field on each. Card 1 is full, card 2 holds nothing but its number, card 3
  /// holds other things than card 1, and no reminders.
  QString MakeUnlikeCards() {
    const test::ACardFile design = test::ACardFile()
                                       .With(test::TextField(u"City"_s))
                                       .With(test::NumberField(u"Turnover"_s))
                                       .With(test::YesNoField(u"Active"_s))
                                       .With(test::DateField(u"Due"_s))
                                       .With(test::TextField(u"Trade"_s), 2)
                                       .With(test::NumberField(u"Staff"_s), 2)
                                       .With(test::YesNoField(u"Member"_s), 2)
                                       .With(test::DateField(u"Since"_s), 2);
    return MakeFile(u"unlike.ddb"_s, design, [](const CardFile& file) {
      file.AddCard(1, u"Full"_s,
                   {{u"City"_s, u"Łódź"_s},
                    {u"Turnover"_s, 1200},
                    {u"Active"_s, -1},
                    {u"Due"_s, u"2031-05-17"_s},
                    {u"Trade"_s, u"Cloth"_s},
                    {u"Staff"_s, 14},
                    {u"Member"_s, -1},
                    {u"Since"_s, u"1999-12-31"_s},
                    {u"Remarks"_s, u"Pays late"_s}});
      file.AddRow(u"MainData"_s, {{u"Index@"_s, 2}});
      file.AddCard(3, u"Other"_s,
                   {{u"City"_s, u"Paris"_s},
                    {u"Staff"_s, 0},
                    {u"Member"_s, -1},
                    {u"Due"_s, u"2001-02-03"_s},
                    {u"Remarks"_s, u"Pays at once"_s}});
      file.AddRow(u"TableDatesRemainder"_s, {{u"Index"_s, 1},
                                             {u"Due"_s, u"2031-05-17"_s},
                                             {u"DueAgents"_s, u"Ann,Bo"_s},
                                             {u"Since"_s, u"1999-12-31"_s}});
      file.AddContact(1, u"Ann"_s, {{u"Activ"_s, -1}, {u"1"_s, u"Lee"_s}, {u"7"_s, u"555-1"_s}});
      file.AddContact(1, u"Bo"_s, {{u"8"_s, u"555-2"_s}});
      file.AddContact(3, u"Cy"_s);
    });
  }
  [[nodiscard]] static QString DateText(const QString& date) {
    const auto& box = In<QWidget>(viewer, date);
    const bool marked = box.findChild<QWidget*>(u"Picture1"_s)->isVisibleTo(&box);
    return TextOf(*box.findChild<QWidget*>(u"DateVal"_s)) + (marked ? u" marked"_s : QString());
  }
  [[nodiscard]] QString ListText(const QString& list) const {
    const auto& combo = Find<QComboBox>(list);
    QString text = combo.currentText() + u':';
    for (int i = 0; i < combo.count(); ++i) text += u" <"_s + combo.itemText(i) + u'>';
    return text;
  }
  /// All of the viewer and the strip that depends on the card.
  [[nodiscard]] Shown ShownNow() const {
    Shown shown;
    for (const QString& box : {u"IndexText"_s, u"NameRecord"_s, u"NameText(0)"_s, u"NameNumber(1)"_s,
                               u"NameText(4)"_s, u"NameNumber(5)"_s, u"DescrText"_s})
      shown[box] = TextOf(viewer, box);
    for (const QString& check : {u"NameCheck(2)"_s, u"NameCheck(6)"_s})
      shown[check] = In<QCheckBox>(viewer, check).isChecked() ? u"yes"_s : u"no"_s;
    for (const QString& date : {u"NameDate(3)"_s, u"NameDate(7)"_s}) shown[date] = DateText(date);
    for (const QString& label : {u"ClientLab"_s, u"NumberLab"_s, u"txtSeek"_s}) shown[label] = Strip(label);
    for (const QString& list : {u"AgentLab"_s, u"TelephonList"_s}) shown[list] = ListText(list);
    return shown;
  }
  [[nodiscard]] static Shown FullCard() {
    return {{u"IndexText"_s, u"1"_s},
            {u"NameRecord"_s, u"Full"_s},
            {u"NameText(0)"_s, u"Łódź"_s},
            {u"NameNumber(1)"_s, u"1200"_s},
            {u"NameCheck(2)"_s, u"yes"_s},
            {u"NameDate(3)"_s, u"5/17/2031 marked"_s},
            {u"NameText(4)"_s, u"Cloth"_s},
            {u"NameNumber(5)"_s, u"14"_s},
            {u"NameCheck(6)"_s, u"yes"_s},
            {u"NameDate(7)"_s, u"12/31/1999 marked"_s},
            {u"DescrText"_s, u"Pays late"_s},
            {u"ClientLab"_s, u"Full"_s},
            {u"NumberLab"_s, u"1"_s},
            {u"txtSeek"_s, u""_s},
            {u"AgentLab"_s, u"Ann   Lee   : <Ann   Lee   > <Bo      >"_s},
            {u"TelephonList"_s, u"555-1: <555-1>"_s}};
  }
  [[nodiscard]] static Shown EmptyCard() {
    return {{u"IndexText"_s, u"2"_s},    {u"NameRecord"_s, u""_s},     {u"NameText(0)"_s, u""_s},
            {u"NameNumber(1)"_s, u""_s}, {u"NameCheck(2)"_s, u"no"_s}, {u"NameDate(3)"_s, u""_s},
            {u"NameText(4)"_s, u""_s},   {u"NameNumber(5)"_s, u""_s},  {u"NameCheck(6)"_s, u"no"_s},
            {u"NameDate(7)"_s, u""_s},   {u"DescrText"_s, u""_s},      {u"ClientLab"_s, u""_s},
            {u"NumberLab"_s, u"2"_s},    {u"txtSeek"_s, u""_s},        {u"AgentLab"_s, u":"_s},
            {u"TelephonList"_s, u":"_s}};
  }
  [[nodiscard]] static Shown OtherCard() {
    return {{u"IndexText"_s, u"3"_s},
            {u"NameRecord"_s, u"Other"_s},
            {u"NameText(0)"_s, u"Paris"_s},
            {u"NameNumber(1)"_s, u""_s},
            {u"NameCheck(2)"_s, u"no"_s},
            {u"NameDate(3)"_s, u"2/3/2001"_s},
            {u"NameText(4)"_s, u""_s},
            {u"NameNumber(5)"_s, u"0"_s},
            {u"NameCheck(6)"_s, u"yes"_s},
            {u"NameDate(7)"_s, u""_s},
            {u"DescrText"_s, u"Pays at once"_s},
            {u"ClientLab"_s, u"Other"_s},
            {u"NumberLab"_s, u"3"_s},
            {u"txtSeek"_s, u""_s},
            {u"AgentLab"_s, u": <Cy      >"_s},
            {u"TelephonList"_s, u":"_s}};
  }
  /// The page buttons that bear the mark of the page in view.
  [[nodiscard]] static QStringList MarkedPages(const QString& screen) {
    QStringList marked;
    for (int page = 0; page < 2; ++page) {
      const auto& button = In<QWidget>(screen, u"Tab(%1)"_s.arg(page));
      const QColor ink = button.palette().color(QPalette::Active, QPalette::ButtonText);
      if (ink.red() > 150 && ink.green() < 100 && ink.blue() < 100) marked += button.objectName();
    }
    return marked;
  }
};

TEST_F(RealFrameCardTest, Step_BetweenUnlikeCards_LeavesNothingOfTheOneBefore) {
  RunOn(MakeUnlikeCards(), 1);
  EXPECT_EQ(ShownNow(), FullCard());
  PressInStrip(u"cmdUp"_s);
  EXPECT_EQ(ShownNow(), EmptyCard());
  PressInStrip(u"cmdUp"_s);
  EXPECT_EQ(ShownNow(), OtherCard());
  PressInStrip(u"cmdDown"_s);
  EXPECT_EQ(ShownNow(), EmptyCard());
  PressInStrip(u"cmdDown"_s);
  EXPECT_EQ(ShownNow(), FullCard());
  // From the full card to the half full one, without the empty one between them.
  QTest::keyClicks(&Find<QWidget>(u"txtSeek"_s), u"3"_s);
  Shown other = OtherCard();
  other[u"txtSeek"_s] = u"3"_s;
  EXPECT_EQ(ShownNow(), other);
}

TEST_F(RealFrameCardTest, Step_WithTheSecondPageInView_KeepsThePageAndShowsTheOtherCardThere) {
  RunOn(MakeUnlikeCards(), 1);
  Press(viewer, u"Tab(1)"_s);
  PressInStrip(u"cmdUp"_s);
  EXPECT_EQ(ShownNow(), EmptyCard());
  EXPECT_EQ(MarkedPages(viewer), QStringList{u"Tab(1)"_s});
  EXPECT_FALSE(In<QWidget>(viewer, u"NameText(0)"_s).isVisible());
  EXPECT_TRUE(In<QWidget>(viewer, u"NameText(4)"_s).isVisible());
}

TEST_F(RealFrameCardTest, Step_NextCardHasNoDate_EmptiesTheDateBox) {
  RunOn(MakeUnlikeCards(), 1);
  PressInStrip(u"cmdUp"_s);
  EXPECT_EQ(DateText(u"NameDate(3)"_s), QString());
}

TEST_F(RealFrameCardTest, Step_NextCardHasNoComment_EmptiesTheComment) {
  RunOn(MakeUnlikeCards(), 1);
  ASSERT_EQ(TextOf(viewer, u"DescrText"_s), u"Pays late"_s);
  PressInStrip(u"cmdUp"_s);
  EXPECT_EQ(TextOf(viewer, u"DescrText"_s), QString());
}

TEST_F(RealFrameCardTest, PageInView_AfterAnotherScreenWasInFront_KeepsItsRedMark) {
  RunOn(MakeUnlikeCards(), 1);
  Press(viewer, u"Tab(1)"_s);
  ASSERT_EQ(MarkedPages(viewer), QStringList{u"Tab(1)"_s});
  ChooseFiles({PathOf(u"new.ddb"_s)});
  Trigger(u"file_new"_s);
  ASSERT_EQ(ui::ActiveChild()->ScreenName(), u"CreatTable"_s);
  Press(u"CreatTable"_s, u"CancelData"_s);
  QApplication::processEvents();
  ASSERT_EQ(ui::ActiveChild()->ScreenName(), viewer);
  EXPECT_EQ(MarkedPages(viewer), QStringList{u"Tab(1)"_s});
}

TEST_F(RealFrameCardTest, PageInViewOfTheEditor_AfterAnotherScreenWasInFront_KeepsItsRedMark) {
  RunOn(MakeUnlikeCards(), 1);
  OpenEditor();
  const QString editor = u"EditTable"_s;
  ASSERT_EQ(MarkedPages(editor), QStringList{u"Tab(0)"_s});
  Press(editor, u"Tab(1)"_s);
  ChooseFiles({PathOf(u"new.ddb"_s)});
  Trigger(u"file_new"_s);
  Press(u"CreatTable"_s, u"CancelData"_s);
  QApplication::processEvents();
  ASSERT_EQ(ui::ActiveChild()->ScreenName(), editor);
  EXPECT_EQ(MarkedPages(editor), QStringList{u"Tab(1)"_s});
}

// Unsaved changes.

TEST_F(RealFrameCardTest, GuardedCommand_ChangeDroppedByNo_Runs) {
  const QString path = MakeUnlikeCards();
  RunOn(path, 1);
  ChangeCity(viewer, u"Lyon"_s);
  const MessageAnswers answers({ui::MsgAnswer::No});
  ClickTool(u"tool"_s, 8);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"QueryN"_s}));
  EXPECT_EQ(RowsOf(path, u"Select [City] from MainData"_s), QStringList({u"Łódź"_s, u"Null"_s, u"Paris"_s}));
}

TEST_F(RealFrameCardTest, Step_ChangeDroppedByNo_AsksNoMoreOnLaterSteps) {
  RunOn(MakeUnlikeCards(), 1);
  ChangeCity(viewer, u"Lyon"_s);
  {
    const MessageAnswers answers({ui::MsgAnswer::No});
    PressInStrip(u"cmdUp"_s);
  }
  PressInStrip(u"cmdDown"_s);
  EXPECT_EQ(ShownNow(), FullCard());
  ClickTool(u"tool"_s, 8);
  EXPECT_EQ(OpenScreens(), QStringList({u"Main"_s, u"QueryN"_s}));
}

TEST_F(RealFrameCardTest, NameChecks_NameOnceEdited_RunOnEveryCardAfterwards) {
  RunOn(MakeFile(u"names.ddb"_s, test::ACardFile().With(test::TextField(u"City"_s)),
                 [](const CardFile& file) {
                   file.AddCard(1, u"Adler"_s);
                   file.AddCard(2, u"Smith"_s);
                   file.AddCard(3, u"Smith Brothers"_s);
                 }),
        2);
  const auto leaveName = [] {
    auto& name = In<QLineEdit>(viewer, u"NameRecord"_s);
    name.setFocus();
    QTest::keyClick(&name, Qt::Key_Tab);
  };
  // Never edited, it is left without a question.
  leaveName();
  PressInStrip(u"cmdDown"_s);
  Type(viewer, u"NameRecord"_s, u"Adler & Co"_s);
  Press(viewer, u"EditData"_s);
  PressInStrip(u"cmdUp"_s);
  ASSERT_EQ(TextOf(viewer, u"NameRecord"_s), u"Smith"_s);
  const MessageAnswers answers({ui::MsgAnswer::Cancel});
  leaveName();
  EXPECT_EQ(answers.Asked().value(0).Title, u"Check name of card"_s);
}

// Contacts, and the last card.

TEST_F(RealFrameCardTest, Contacts_NullInAName_EndTheListThere) {
  RunOn(MakeFile(u"contacts.ddb"_s, test::ACardFile().With(test::TextField(u"City"_s)),
                 [](const CardFile& file) {
                   file.AddCard(1, u"Card"_s);
                   file.AddContact(1, u"Ann"_s, {{u"7"_s, u"555-1"_s}});
                   file.AddRow(u"Agent"_s, {{u"Index"_s, 1}, {u"1"_s, u"Lee"_s}, {u"6"_s, u""_s}});
                   file.AddContact(1, u"Bo"_s, {{u"Activ"_s, -1}, {u"7"_s, u"555-2"_s}});
                 }),
        1);
  EXPECT_EQ(ListText(u"AgentLab"_s), u": <Ann      >"_s);
  EXPECT_EQ(ListText(u"TelephonList"_s), u":"_s);
}

TEST_F(RealFrameCardTest, DeleteCard_TheLastOne_LeavesNothingInTheStrip) {
  const QString path =
      MakeFile(u"last.ddb"_s, test::ACardFile().With(test::TextField(u"City"_s)), [](const CardFile& file) {
        file.AddCard(7, u"Last"_s);
        file.AddContact(7, u"Ann"_s, {{u"Activ"_s, -1}, {u"7"_s, u"555-1"_s}});
      });
  RunOn(path, 7);
  ASSERT_EQ(Strip(u"ClientLab"_s), u"Last"_s);
  ASSERT_EQ(ListText(u"TelephonList"_s), u"555-1: <555-1>"_s);
  QTest::keyClicks(&Find<QWidget>(u"txtSeek"_s), u"7"_s);
  {
    const MessageAnswers answers({ui::MsgAnswer::Ok});
    Trigger(u"DelCard"_s);
  }
  EXPECT_EQ(OpenScreens(), QStringList{u"Main"_s});
  for (const QString& control : {u"ClientLab"_s, u"NumberLab"_s, u"txtSeek"_s})
    EXPECT_EQ(Strip(control), QString()) << control.toStdString();
  EXPECT_EQ(ListText(u"AgentLab"_s), u":"_s);
  EXPECT_EQ(ListText(u"TelephonList"_s), u":"_s);
  Trigger(u"exit"_s);
  EXPECT_EQ(Stored(u"Load"_s, u"Index"_s), u"0"_s);
}

}  // namespace
}  // namespace velmora
