// SPDX-License-Identifier: MIT
#include "shell/MenuTable.h"

#include "resources/strings.h"

#include <array>

namespace velmora {

namespace texts = strings::menu;

namespace {

using enum Command;
using enum EntryStart;

// Disabled entries belong to features that this program does not have; they keep their place.
constexpr auto fileEntries = std::to_array<MenuRow>({
    {u"open_new", texts::Open, Open, u"Ctrl+O"},
    {u"file_new", texts::New, New, u"Ctrl+N"},
    {u"mPrint", texts::Print, Nothing, {}, Hidden},
    {u"mnuMakeReplica", texts::MakeReplica, Nothing, u"Ctrl+R", Disabled},
    {u"mnuSynchronize", texts::Synchronize, Nothing, {}, Disabled},
    {u"mnuResolveConflicts", texts::ResolveConflicts, Nothing, {}, Disabled},
    {u"mnuImportFile", texts::ImportFile, Nothing, u"Ctrl+I", Disabled},
    {u"Repair", texts::RepairFile, RepairFile},
    {DeleteCardEntry, texts::DeleteCard, DeleteCard, u"Ctrl+D"},
    {u"aa", texts::Separator},
    {u"exit", texts::Quit, Quit, u"Ctrl+Q"},
    {RecentSeparator, texts::Separator, Nothing, {}, Hidden},
});

constexpr auto editEntries = std::to_array<MenuRow>({
    {u"hCancel", texts::Undo, Undo},
    {u"qweqew", texts::Separator},
    {u"hCut", texts::Cut, Cut, u"Ctrl+X"},
    {u"hCopy", texts::Copy, Copy, u"Ctrl+C"},
    {u"hPaste", texts::Paste, Paste, u"Ctrl+V"},
    {u"hDel", texts::Delete, DeleteText, u"Del"},
    {u"asdfsdff", texts::Separator},
    {u"hSelAll", texts::SelectAll, SelectAll},
    {u"kljh", texts::Separator},
    {u"hCopyAgent", texts::CopyContact, Nothing, {}, Disabled},
    {u"hPasteAgent", texts::PasteContact, Nothing, {}, Disabled},
});

constexpr auto toolsEntries = std::to_array<MenuRow>({
    {u"ImportExcel", texts::ImportExcel, Nothing, {}, Disabled},
    {u"ExportNames", texts::ExportNames, Nothing, {}, Disabled},
    {u"adasdad", texts::Separator},
    {u"hImpProd", texts::ImportProducts, Nothing, {}, Disabled},
    {u"hImpFields", texts::ExportProductNames, Nothing, {}, Disabled},
    {u"jhg", texts::Separator},
    {u"hHelpExport", texts::HelpOnImport, HelpOnImport},
});

constexpr auto optionsEntries = std::to_array<MenuRow>({
    {u"mnuOptions", texts::Options, Options},
});

constexpr auto helpEntries = std::to_array<MenuRow>({
    {u"HelpM", texts::HelpTopics, HelpContents, u"F1"},
    {u"hVideoHelp", texts::VideoHelp, VideoHelp},
    {u"mnuSamples", texts::Samples, Samples},
    {u"mInternet", strings::WebAddress, WebPage},
    {u"mnuEmailUs", texts::EmailUs},
    {u"gfhgh", texts::Separator},
    {u"About", texts::About, About},
});

constexpr auto menus = std::to_array<MenuRows>({
    {RecentMenu, texts::File, fileEntries},
    {u"hEdit", texts::Edit, editEntries},
    {u"Tools", texts::Tools, toolsEntries},
    {u"Options", texts::OptionsMenu, optionsEntries},
    {u"About1", texts::HelpMenu, helpEntries},
});

}  // namespace

std::span<const MenuRows> Menus() { return menus; }

}  // namespace velmora
