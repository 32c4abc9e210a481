// SPDX-License-Identifier: MIT
#include "shell/ToolTable.h"

#include "resources/strings.h"

#include <array>

namespace velmora {

namespace tips = strings::tools;

namespace {

using enum Command;
using enum Guard;

constexpr QStringView drawnCalculator;

// The three programs are numbered against the order of their buttons.
constexpr auto longTools = std::to_array<ToolRow>({
    {u"actions/22/edit-find", u"Q", tips::QuickSearch, Guarded, QuickSearch},
    {u"actions/22/list-add-user", u"+", tips::NewCard, Guarded, NewCard},
    {u"status/22/dialog-warning", u"!", tips::FlashingMessage, Unguarded, Browser},
    {u"actions/22/view-calendar-journal", u"MD", tips::MessageDiary, Guarded, Browser},
    {u"devices/22/input-dialpad", u"QD", tips::QuickDial, Unguarded, Browser},
    {u"actions/22/view-form", u"FI", tips::CardFields, Guarded, FieldEditor},
    {u"actions/22/view-calendar-upcoming-events", u"AQ", tips::AppointmentQueries, Unguarded, Browser},
    {u"actions/22/tag", u"LA", tips::Labels, Unguarded, Browser},
    {u"actions/22/tag-people", u"CQ", tips::ContactQueries, Unguarded, Browser},
    {u"actions/22/mail-send", u"@", tips::SendEmail, Guarded, Browser},
    {u"actions/22/system-run", u"P", tips::ProgramOfChoice, Unguarded, Program3, u"3"},
    {u"actions/22/system-run", u"P", tips::ProgramOfChoice, Unguarded, Program2, u"2"},
    {u"actions/22/system-run", u"P", tips::ProgramOfChoice, Unguarded, Program1, u"1"},
    {drawnCalculator, u"=", tips::Calculator, Unguarded, Calculator},
    {u"actions/22/view-currency-list", u"PQ", tips::PriceListQueries, Unguarded, Browser},
    {u"actions/22/view-financial-list", u"PC", tips::PriceListByCustomer, Unguarded, Browser},
    {u"actions/22/view-list-details", u"LQ", tips::ListOfQueries, Guarded, QueryList},
    {u"actions/22/edit-undo", u"RQ", tips::PreviousQuery, Unguarded, PreviousQuery},
    {u"devices/22/audio-headset", u"TM", tips::TelemarketingData, Unguarded, Browser},
    {u"actions/22/view-pim-contacts", u"CC", tips::ListOfCustomers, Guarded, Search},
    {u"status/22/call-outgoing", u"NC", tips::NextCall, Unguarded, Browser},
    {u"actions/22/call-stop", u"X", tips::CancelDial, Unguarded, Browser},
    {u"actions/22/view-certificate", u"US", tips::SystemUsers, Unguarded, Browser},
    {u"actions/22/system-shutdown", u"EX", tips::Exit, Guarded, Quit},
    {u"actions/22/help-about", u"i", tips::NoTip, Unguarded, Browser},
});

constexpr auto shortTools = std::to_array<ToolRow>({
    {u"actions/22/user-properties", u"CC", tips::CustomerCard, Guarded, CustomerCard},
    {u"actions/22/view-conversation-balloon", u"SD", tips::Connections, Guarded, Browser},
    {u"actions/22/player-time", u"NC", tips::TimeForNextCall, Guarded, Browser},
    {u"actions/22/view-calendar", u"AP", tips::Appointments, Guarded, Browser},
    {u"actions/22/view-pim-contacts", u"CO", tips::ListOfContacts, Guarded, Browser},
    {u"actions/22/document-print-direct", u"FX", tips::Facsimile, Guarded, Browser},
    {u"actions/22/amarok_cart_view", u"PR", tips::ProductsAndPrices, Guarded, Browser},
    {u"actions/22/amarok_cart_add", u"P+", tips::NewPriceList, Guarded, Browser},
    {u"actions/22/view-filter", u"QU", tips::Queries, Guarded, QueryBuilder},
    {u"devices/22/audio-headset", u"TM", tips::Telemarketing, Unguarded, Browser},
    {u"actions/22/call-start", u"DI", tips::DialContact, Unguarded, Browser},
    {u"status/22/call-incoming", u"CW", tips::CallWaiting, Guarded, Browser},
    {u"actions/22/help-about", u"i", tips::NoTip, Guarded, Browser},
});

}  // namespace

ToolRows LongTools() { return longTools; }

ToolRows ShortTools() { return shortTools; }

void PressTool(ToolRows bar, int index, const std::function<bool()>& closeOthers,
               const std::function<void(Command)>& run) {
  const auto place = static_cast<std::size_t>(index);
  const ToolRow& tool = place < bar.size() ? bar[place] : bar.back();
  if (tool.Guarding == Guard::Guarded && !closeOthers()) return;
  run(tool.Run);
}

}  // namespace velmora
