// SPDX-License-Identifier: MIT
#pragma once

namespace velmora {

/// What the menu and the toolbars can make the program do. The rows of MenuTable and ToolTable name them,
/// Commands runs them.
enum class Command {
  /// That of an entry whose feature this program does not have.
  Nothing,
  Open,
  New,
  RepairFile,
  DeleteCard,
  Quit,
  Undo,
  Cut,
  Copy,
  Paste,
  DeleteText,
  SelectAll,
  HelpOnImport,
  Options,
  HelpContents,
  VideoHelp,
  Samples,
  WebPage,
  About,
  CustomerCard,
  NewCard,
  QuickSearch,
  Search,
  FieldEditor,
  QueryBuilder,
  QueryList,
  PreviousQuery,
  Program1,
  Program2,
  Program3,
  Calculator,
  /// The description of the features that this program does not have.
  Browser,
};

}  // namespace velmora
