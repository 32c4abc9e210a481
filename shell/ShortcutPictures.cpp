// SPDX-License-Identifier: MIT
#include "shell/ShortcutPictures.h"

#include "resources/strings.h"
#include "shell/ToolPictures.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <vector>

namespace velmora {

namespace texts = strings::options;

namespace {

struct OfferedPicture {
  ToolSymbol Symbol;
  strings::Text Shows;
};

constexpr auto offered = std::to_array<OfferedPicture>({
    {{u"actions/22/system-run", u"P"}, texts::PictureStart},
    {{u"actions/22/document-edit", u"T"}, texts::PictureText},
    {{u"actions/22/view-list-text", u"L"}, texts::PictureList},
    {{u"actions/22/office-chart-bar", u"C"}, texts::PictureChart},
    {{u"actions/22/view-pim-notes", u"N"}, texts::PictureNote},
    {{u"actions/22/draw-brush", u"B"}, texts::PictureBrush},
    {{u"devices/22/camera-photo", u"I"}, texts::PicturePhoto},
    {{u"places/22/folder", u"F"}, texts::PictureFolder},
    {{u"actions/22/mail-send", u"@"}, texts::PictureMail},
    {{u"actions/22/globe", u"W"}, texts::PictureGlobe},
    {{u"actions/22/view-calendar", u"D"}, texts::PictureCalendar},
    {{u"actions/22/tools", u"S"}, texts::PictureTools},
});

}  // namespace

ui::ImageList ShortcutPictures() {
  std::vector<ToolSymbol> symbols;
  std::ranges::transform(offered, std::back_inserter(symbols), &OfferedPicture::Symbol);
  return PicturesOf(std::move(symbols)).Normal;
}

QStringList ShortcutPictureNames() {
  QStringList names;
  for (const OfferedPicture& picture : offered) names += picture.Shows;
  return names;
}

ui::ImageList ShortcutButtonPictures() {
  std::vector<ToolSymbol> symbols;
  for (const Command program : {Command::Program1, Command::Program2, Command::Program3}) {
    const ToolRow& row = *std::ranges::find(LongTools(), program, &ToolRow::Run);
    symbols.push_back(SymbolOf(row));
  }
  return PicturesOf(std::move(symbols)).Normal;
}

}  // namespace velmora
