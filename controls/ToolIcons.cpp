// SPDX-License-Identifier: MIT
#include "controls/ToolIcons.h"

#include "controls/SymbolSheet.h"
#include "forms/ToolPicture.h"

#include <array>
#include <memory>

namespace velmora {

namespace {

constexpr QStringView drawnCalculator;

constexpr std::array<ToolSymbol, 25> longSymbols{{
    {u"actions/22/edit-find", u"Q"},                       // Quick Search
    {u"actions/22/list-add-user", u"+"},                   // Create New Card
    {u"status/22/dialog-warning", u"!"},                   // Create Flashing Message
    {u"actions/22/view-calendar-journal", u"MD"},          // Message Diary
    {u"devices/22/input-dialpad", u"QD"},                  // Quick Dial / Manual Dial
    {u"actions/22/view-form", u"FI"},                      // Add/Delete Card Fields
    {u"actions/22/view-calendar-upcoming-events", u"AQ"},  // Appointment Queries
    {u"actions/22/tag", u"LA"},                            // Create Labels
    {u"actions/22/tag-people", u"CQ"},                     // Contact Queries
    {u"actions/22/mail-send", u"@"},                       // Send E-mail
    {u"actions/22/system-run", u"P", u"3"},                // Transfer to program 3
    {u"actions/22/system-run", u"P", u"2"},                // Transfer to program 2
    {u"actions/22/system-run", u"P", u"1"},                // Transfer to program 1
    {drawnCalculator, u"="},                               // Calculator
    {u"actions/22/view-currency-list", u"PQ"},             // Price List Queries
    {u"actions/22/view-financial-list", u"PC"},            // Price List by Customer
    {u"actions/22/view-list-details", u"LQ"},              // List of Queries
    {u"actions/22/edit-undo", u"RQ"},                      // Return to Previous Query
    {u"devices/22/audio-headset", u"TM"},                  // Data for Telemarketing
    {u"actions/22/view-pim-contacts", u"CC"},              // List of Customers/Contacts
    {u"status/22/call-outgoing", u"NC"},                   // Next Call-Automatic Dial
    {u"actions/22/call-stop", u"X"},                       // Cancel Automatic Dial
    {u"actions/22/view-certificate", u"US"},               // Determine System Users + Password
    {u"actions/22/system-shutdown", u"EX"},                // Exit
    {u"actions/22/help-about", u"i"},
}};

constexpr std::array<ToolSymbol, 13> shortSymbols{{
    {u"actions/22/user-properties", u"CC"},            // Customer Card
    {u"actions/22/view-conversation-balloon", u"SD"},  // Summary of Discussions
    {u"actions/22/player-time", u"NC"},                // Set Time for Next Call
    {u"actions/22/view-calendar", u"AP"},              // Appointments
    {u"actions/22/view-pim-contacts", u"CO"},          // List of Contacts
    {u"actions/22/document-print-direct", u"FX"},      // Facsimile Transmission
    {u"actions/22/amarok_cart_view", u"PR"},           // List of Products and Prices
    {u"actions/22/amarok_cart_add", u"P+"},            // Create a New Price List
    {u"actions/22/view-filter", u"QU"},                // Queries
    {u"devices/22/audio-headset", u"TM"},              // Telemarketing
    {u"actions/22/call-start", u"DI"},                 // Dial Telephone No. of Contact
    {u"status/22/call-incoming", u"CW"},               // Call Waiting List
    {u"actions/22/help-about", u"i"},
}};

ToolImages ImagesOf(std::span<const ToolSymbol> symbols) {
  const auto sheet = std::make_shared<SymbolSheet>(symbols);
  ToolImages images;
  for (int i = 0; i < static_cast<int>(symbols.size()); ++i) {
    const auto draw = [sheet, i](QPainter& painter, const QRectF& square) {
      sheet->Draw(painter, square, i);
    };
    images.Normal.Add(ui::ToolPicture(draw, ui::PictureState::Normal));
    images.Hover.Add(ui::ToolPicture(draw, ui::PictureState::Hover));
    images.Pressed.Add(ui::ToolPicture(draw, ui::PictureState::Pressed));
  }
  return images;
}

}  // namespace

ToolImages LongToolImages() { return ImagesOf(longSymbols); }

ToolImages ShortToolImages() { return ImagesOf(shortSymbols); }

}  // namespace velmora
