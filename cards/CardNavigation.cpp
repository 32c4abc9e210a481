// SPDX-License-Identifier: MIT
#include "cards/CardNavigation.h"

#include "base/system/Failures.h"
#include "cardfile/CardFileSchema.h"
#include "cardfile/Cards.h"
#include "cardfile/FieldCatalogue.h"
#include "cards/CardNumbers.h"
#include "cards/ShowContacts.h"
#include "cards/ShowTable.h"
#include "forms/MsgBox.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

// Screens of these codes stay open while the strip moves on: the searches, and features that do not exist
// here.
constexpr int FirstStayingOpen = 7;
constexpr int LastStayingOpen = 11;

}  // namespace

void GoToCard(std::int32_t number) {
  Trap([number] {
    Frame& frame = Frame::Main();
    Session& session = Global();
    const int active = frame.GetActive();
    const bool staysOpen = active >= FirstStayingOpen && active <= LastStayingOpen;
    const bool mayGoOn = staysOpen ? session.CardChanged == False : frame.UnloadOtherForms();
    if (!mayGoOn) return;

    const auto nearest = NearestCard(number, session.CurCard);
    if (!nearest) {
      ui::MsgBox(strings::card::DoesNotExist);
      return;
    }
    const db::Recordset row = Cards(session.File()).CardOf(*nearest);
    // A card without a name ends the routine here, with the labels as they were.
    session.CurCard = row[schema::CardNumber.View()].Long();
    frame.ShowInStrip(row[MainFieldName()].Text(), session.CurCard);
    ShowContacts();
  });
}

void DeleteCurrentCard(const std::function<void()>& stepUp) {
  Frame& frame = Frame::Main();
  const ui::MsgAnswer answer =
      ui::MsgBox({.Text = QString(strings::card::DeleteQuestion) + frame.NameInStrip(),
                  .Buttons = ui::MsgButtons::OkCancel,
                  .BareTitle = true,
                  .Destroys = true});
  if (answer != ui::MsgAnswer::Ok) return;
  Trap([&] {
    DeleteCard(Global().CurCard);
    if (ShowTable* viewer = ShowTable::Opened()) viewer->DropChanges();
    frame.EmptySeekBox();
    if (frame.CardCountZero() == 1) {
      Global().CurCard = 0;
      frame.UnloadOtherForms();
      return;
    }
    frame.ShowCard();
    stepUp();
  });
}

}  // namespace velmora
