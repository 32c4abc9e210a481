// SPDX-License-Identifier: MIT
#pragma once

#include "resources/Text.h"

#include <array>

/// Every text that the user sees, by name. The texts are exact: doubled spaces and spaces at an end belong to
/// them. Texts that more than one screen shows stand first, then those of each screen or subject in a
/// namespace of its own.
namespace velmora::strings {

inline constexpr Text ProgramName = u"Velmora";
inline constexpr Text WebAddress = u"https://velmora.example";
inline constexpr Text Ok = u"OK";
inline constexpr Text Cancel = u"Cancel";
inline constexpr Text Help = u"Help";
inline constexpr Text Delete = u"Delete";
inline constexpr Text InfoTitle = u"Info";
inline constexpr Text ClickToExit = u"Click to Exit";
inline constexpr Text ClickToExitWithNoChanges = u"Click to Exit with No Changes";

/// What assistive technology says of the box that finds a line of a list.
inline constexpr Text FindInList = u"Find in the list";

/// The kinds of a field, in the order of their codes.
inline constexpr Text KindText = u"Text";
inline constexpr Text KindNumber = u"Number";
inline constexpr Text KindYesNo = u"Yes/No";
inline constexpr Text KindDate = u"Date";
/// The two values of a Yes/No field, as grids and conditions show them.
inline constexpr Text Yes = u"Yes";
inline constexpr Text No = u"No";
inline constexpr std::array<Text, 4> Kinds{KindText, KindNumber, KindYesNo, KindDate};

/// Checks of names and texts.
inline constexpr Text NoApostrophe = u"This string cannot contain the apostrophe ( ' ) character";
inline constexpr Text ForbiddenCharacters =
    u"This string cannot contain any of the following characters:\r\n"
    u"                       ,.\\[]{}/<>~`:;()|!%^&*'?\" ";
inline constexpr Text SelectADifferentName = u"Please select a different name.";
inline constexpr Text FieldNameExists = u"This name already exists!\r\nPlease select a different name.";
inline constexpr Text ThisNameAlreadyExists = u"This name already exists!";
/// The wording for a card that is not stored yet ends in a space.
inline constexpr Text ThisNameAlreadyExistsBlank = u"This name already exists! ";
inline constexpr Text EnterMainFieldName = u"Please enter a name for your main field.";
inline constexpr Text SaveChangesQuestion = u"Do you wish to save changes?";

/// The file dialog and the recent files.
namespace file {
inline constexpr Text Filter = u"Database,*.ddb|*.ddb";
inline constexpr Text OpenTitle = u"Open";
inline constexpr Text NewTitle = u"New";
inline constexpr Text OpenSampleTitle = u"Open Sample";
inline constexpr Text DoesNotExist = u"This file does not exist!";
inline constexpr Text NoneOpen = u"No card file is open.";
inline constexpr Text NoCards = u"The card file that is open has no cards yet.";
/// Notices. %1 is a path, %2 what the engine says.
inline constexpr Text NotOpened = u"%1 could not be opened: %2";
inline constexpr Text NoCardFile = u"%1 is no card file.";
inline constexpr Text Missing = u"There is no file %1.";
}  // namespace file

/// The strip under the toolbars.
namespace strip {
inline constexpr Text SeekTip = u"Enter Card Number";
inline constexpr Text TelephoneTip = u"Contact Telephone No.";
inline constexpr Text ContactTip = u"Selected Contact / Click to Receive Contacts for this Card";
inline constexpr Text ClockTip = u"Clock/Stop Watch";
inline constexpr Text NameTip = u"Double Click for Quick Search";
/// What assistive technology says of the controls that show no text of their own.
inline constexpr Text NextCard = u"Next card";
inline constexpr Text PreviousCard = u"Previous card";
inline constexpr Text CardNumber = u"Card number";
inline constexpr Text CardName = u"Card name";
}  // namespace strip

/// The menu bar.
namespace menu {
inline constexpr Text File = u"&File";
inline constexpr Text Open = u"Open";
inline constexpr Text New = u"New";
inline constexpr Text Print = u"Print";
inline constexpr Text MakeReplica = u"Make Replica...";
inline constexpr Text Synchronize = u"Synchronization...";
inline constexpr Text ResolveConflicts = u"Resolve Conflicts...";
inline constexpr Text ImportFile = u"Import Data from file...";
inline constexpr Text RepairFile = u"Repair File";
inline constexpr Text DeleteCard = u"Delete Card";
inline constexpr Text Separator = u"-";
inline constexpr Text Quit = u"Quit";
inline constexpr Text Edit = u"&Edit";
inline constexpr Text Undo = u"Undo";
inline constexpr Text Cut = u"Cut";
inline constexpr Text Copy = u"Copy";
inline constexpr Text Paste = u"Paste";
inline constexpr Text Delete = u"Delete";
inline constexpr Text SelectAll = u"Select All";
inline constexpr Text CopyContact = u"Copy Contact";
inline constexpr Text PasteContact = u"Paste Contact";
inline constexpr Text Tools = u"&Tools";
inline constexpr Text ImportExcel = u"Import Data from EXCEL";
inline constexpr Text ExportNames = u"Export Field Names to EXCEL";
inline constexpr Text ImportProducts = u"Import Product Data from EXCEL";
inline constexpr Text ExportProductNames = u"Export Product Field Names to EXCEL";
inline constexpr Text HelpOnImport = u"Help on Import Data";
inline constexpr Text OptionsMenu = u"&Options";
inline constexpr Text Options = u"Options";
inline constexpr Text HelpMenu = u"&Help";
inline constexpr Text HelpTopics = u"Help Topics";
inline constexpr Text VideoHelp = u"&Video Help";
inline constexpr Text Samples = u"&Samples";
inline constexpr Text EmailUs = u"&E-mail Us...";
inline constexpr Text About = u"About Velmora";
}  // namespace menu

/// The programs that the commands start.
namespace programs {
inline constexpr Text NoHelp = u"The help viewer could not be started.";
/// Of a program, by its path.
inline constexpr Text CannotStart = u"%1 could not be started.";
inline constexpr Text NoTextEditor = u"No program for text files is installed.";
inline constexpr Text NoPictureEditor = u"No program for pictures is installed.";
inline constexpr Text NoFileManager = u"No program for folders is installed.";
inline constexpr Text NoCalculator = u"No calculator is installed.";
inline constexpr Text CalculatorRuns = u"The calculator is already running.";
inline constexpr Text NoSystemInformation = u"The system information is temporarily unavailable.";
inline constexpr Text NoBrowser =
    u"Please  make  sure  your web  browser is installed correctly and  that you have\r\n"
    u"specified the path to your browser in the Options -> Options -> Internet menu";
}  // namespace programs

/// What the program prints where it was started. %1 is the version, a word of the command line, a path.
namespace commandline {
inline constexpr Text Version = u"Velmora %1\n";
inline constexpr Text Usage = u"usage: velmora [FILE]\n       velmora --help | --version\n";
inline constexpr Text Help =
    u"usage: velmora [FILE]\n"
    u"       velmora --help | --version\n"
    u"\n"
    u"Keeps the customer cards of a small business.\n"
    u"\n"
    u"  FILE         the card file to start on, a path or a file: address;\n"
    u"               without one the program starts on the last file\n"
    u"  --help       prints this and ends\n"
    u"  --version    prints the version and ends\n"
    u"\n"
    u"FILE that does not exist: when there is no display, the exit code is 2.\n";
inline constexpr Text UnknownOption = u"velmora: unknown option %1";
inline constexpr Text OneFile = u"velmora: only one file can be opened";
inline constexpr Text Missing = u"velmora: there is no file %1\n";
inline constexpr Text NoDisplay = u"velmora: there is no display to start on\n";
}  // namespace commandline

/// What a user without a card file meets: the welcome, the samples, the advice on a first file.
namespace firstrun {
inline constexpr Text Cancel = u"&Cancel";
inline constexpr Text Welcome = u"Welcome toVelmora!";
inline constexpr Text WelcomeMessage =
    u"Velmora works with database files.\r\n"
    u"You may now create different files suitable for various needs.\r\n"
    u"Please choose from the two options below: \r\n";
inline constexpr Text SampleTitle = u"Open Sample File";
inline constexpr Text SampleText =
    u"\r\nOpen a sample file which has \r\n"
    u"been prepared to make your \r\n"
    u"first steps easier.\r\n\r\n"
    u"In order to view the sample \r\n"
    u"files click \"Samples\".\r\n";
inline constexpr Text Samples = u"&Samples";
inline constexpr Text NewTitle = u"New database";
inline constexpr Text NewText =
    u"\r\nCreate a new file and \r\n"
    u"name it.\r\n\r\n\r\n"
    u"In order to create your new \r\n"
    u"file click \"OK\".\r\n";
/// What assistive technology says of the text under the headline.
inline constexpr Text Message = u"What Velmora does";

inline constexpr Text OpenSamplesTitle = u"Open Samples";
inline constexpr Text AboutSamples =
    u"You may select one of the sample files which have been \r\n"
    u"prepared to make your first steps easier.\r\n\r\n"
    u"You may add or delete fields in these files according to your \r\n"
    u"own specifications.\r\n\r\n"
    u"We have entered sample data in these files. \r\n"
    u"You may delete cards and tailor the file to meet your own \r\n"
    u"needs.\r\n\r\n"
    u"You may view these files again at any time by selecting \r\n"
    u"\"Help\" from the menu and clicking \"Samples\".\r\n\r\n"
    u"You may always open and plan new files according to your own specifications.\r\n";
/// What assistive technology says of that text.
inline constexpr Text SamplesMessage = u"About the samples";

inline constexpr Text Limits = u"You can open up to 100 categories, divided into 10 pages of information. ";
inline constexpr Text Advice =
    u"Each category has three types of fields: text, number, yes/no.\r\n"
    u"Your database has a direct effect on your future queries.\r\n\r\n"
    u"Always use text fields  for texts and for numbers (such as telephone numbers etc.)\r\n"
    u"Use number fields only if you wish to use the parameters of  <,>,= in your queries.\r\n"
    u"Use yes/no fields for yes/no queries.\r\n\r\n"
    u"Determine the number of fields per page.\r\n"
    u"Enter categories.\r\n"
    u"Determine fields.\r\n"
    u"Select new page.\r\n\r\n"
    u"Click OK after completing your selections for all the pages.\r\n\r\n"
    u"After creating a file, select Options from the main screen menu and enter your\r\n"
    u"settings.";

/// A notice. %1 is a folder.
inline constexpr Text SamplesNotCopied =
    u"The sample files could not be copied to %1, so they open from the program\u2019s own folder.";
}  // namespace firstrun

/// The description of the features that the program does not have.
namespace browser {
inline constexpr Text Title = u"Features Not in This Program";
inline constexpr Text Missing =
    u"The description could not be read: the file Velmora.rtf is missing or damaged.";
}  // namespace browser

/// What the program tells about itself.
namespace about {
inline constexpr Text Title = u"About Velmora";
inline constexpr Text ProgramAndVersion = u"Velmora  Zenlet v";
inline constexpr Text Description = u"Customer cards of your own design, kept, found and queried.";
inline constexpr Text Licence =
    u"Copyright (c) 2026 The Velmora developers.\r\n"
    u"Free software under the MIT License, without any warranty.";
/// With the versions of the two libraries.
inline constexpr Text Libraries =
    u"Made with Qt %1 (LGPL 3), SQLite %2 (public domain)\r\n"
    u"and the Breeze icons (LGPL 3).";
inline constexpr Text SystemInformation = u"&System Info...";
}  // namespace about

/// The tool tips of the two toolbars.
namespace tools {
/// That of the button behind the last one that has a tip, and what assistive technology says of it.
inline constexpr Text NoTip = u"";
inline constexpr Text BeyondTips = u"Other features";
/// The long bar.
inline constexpr Text QuickSearch = u"Quick Search: Cards/Contacts/Telephone";
inline constexpr Text NewCard = u"Create New Card";
inline constexpr Text FlashingMessage = u"Create Flashing Message";
inline constexpr Text MessageDiary = u"Message Diary";
inline constexpr Text QuickDial = u"Quick Dial / Manual Dial";
inline constexpr Text CardFields = u"Add/Delete Card Fields";
inline constexpr Text AppointmentQueries = u"Appointment Queries";
inline constexpr Text Labels = u"Create Labels";
inline constexpr Text ContactQueries = u"Contact Queries";
inline constexpr Text SendEmail = u"Send E-mail";
inline constexpr Text ProgramOfChoice = u"Transfer to the Program of Your Choice - See Options";
inline constexpr Text Calculator = u"Calculator";
inline constexpr Text PriceListQueries = u"Price List Queries";
inline constexpr Text PriceListByCustomer = u"Price List by Customer";
inline constexpr Text ListOfQueries = u"List of Queries";
inline constexpr Text PreviousQuery = u"Return to Previous Query";
inline constexpr Text TelemarketingData = u"Data for Telemarketing";
inline constexpr Text ListOfCustomers = u"List of Customers/Contacts";
inline constexpr Text NextCall = u"Next Call-Automatic Dial";
inline constexpr Text CancelDial = u"Cancel Automatic Dial";
inline constexpr Text SystemUsers = u"Determine System Users + Password";
inline constexpr Text Exit = u"Exit";
/// The short bar.
inline constexpr Text CustomerCard = u"Customer Card";
inline constexpr Text Connections = u"Summary of Discussions with Customers (Connections)";
inline constexpr Text TimeForNextCall = u"Set Time for Next Call";
inline constexpr Text Appointments = u"Appointments";
inline constexpr Text ListOfContacts = u"List of Contacts";
inline constexpr Text Facsimile = u"Facsimile Transmission";
inline constexpr Text ProductsAndPrices = u"List of Products and Prices";
inline constexpr Text NewPriceList = u"Create a New Price List";
inline constexpr Text Queries = u"Queries";
inline constexpr Text Telemarketing = u"Telemarketing";
inline constexpr Text DialContact = u"Dial Telephone No. of Contact";
inline constexpr Text CallWaiting = u"Call Waiting List";
}  // namespace tools

/// The viewer of the help.
namespace help {
inline constexpr Text Title = u"Velmora Help";
inline constexpr Text TitleBehindPage = u" - Velmora Help";
inline constexpr Text Usage =
    u"usage: velmora-help FILE [TOPIC]\n"
    u"Shows the help file FILE (without an ending: FILE.qch) at its contents, or at the topic of that number "
    u"or keyword.";
inline constexpr Text NoDisplay = u"velmora-help: there is no display to show the help on.";
/// What keeps a help file from being shown.
inline constexpr Text Missing = u"The help file %1 does not exist.";
inline constexpr Text Unreadable = u"The help file %1 cannot be read.";
inline constexpr Text Damaged = u"The file %1 is damaged, or it is no help file.";
inline constexpr Text NoPlace = u"The help cannot be shown: %1";
/// What stands in place of a page, and over one.
inline constexpr Text NoSuchPage = u"The help file does not hold this page, or is damaged.";
inline constexpr Text UnknownTopic = u"The help has no topic \u201c%1\u201d. These are its contents.";
/// Menus and toolbar.
inline constexpr Text FileMenu = u"&File";
inline constexpr Text Print = u"&Print...";
inline constexpr Text Close = u"&Close";
inline constexpr Text EditMenu = u"&Edit";
inline constexpr Text Copy = u"&Copy";
inline constexpr Text SelectAll = u"Select &All";
inline constexpr Text ViewMenu = u"&View";
inline constexpr Text Larger = u"&Larger Text";
inline constexpr Text Smaller = u"&Smaller Text";
inline constexpr Text NormalSize = u"&Normal Size";
inline constexpr Text ShowContents = u"Show &Contents";
inline constexpr Text ShowIndex = u"Show &Index";
inline constexpr Text ShowSearch = u"S&earch";
inline constexpr Text OtherSide = u"To the &Other Side";
inline constexpr Text GoMenu = u"&Go";
inline constexpr Text Back = u"&Back";
inline constexpr Text Forward = u"&Forward";
inline constexpr Text FirstPage = u"&Contents";
inline constexpr Text PreviousTopic = u"&Previous Topic";
inline constexpr Text NextTopic = u"&Next Topic";
inline constexpr Text ToolBar = u"Tools of the help";
/// The tabs.
inline constexpr Text Contents = u"&Contents";
inline constexpr Text Index = u"&Index";
inline constexpr Text IndexWord = u"Find the &word:";
inline constexpr Text Search = u"&Search";
inline constexpr Text WordsToFind = u"Wor&ds to find:";
inline constexpr Text Find = u"Fi&nd";
inline constexpr Text NoWords = u"Enter a word to find.";
inline constexpr Text Indexing = u"Reading the help...";
inline constexpr Text NothingFound = u"No page holds all of these words.";
inline constexpr Text OneFound = u"One page found.";
inline constexpr Text ManyFound = u"%1 pages found.";
/// What assistive technology says of the controls that show no text of their own.
inline constexpr Text Page = u"Page of the help";
inline constexpr Text ContentsList = u"Contents of the help";
inline constexpr Text IndexList = u"Keywords of the help";
inline constexpr Text Results = u"Pages found";
}  // namespace help

/// What the new-file wizard and the field editor share.
namespace fieldpages {
inline constexpr Text FieldNameTip = u"Enter Field Name";
/// What the screens say of their boxes: labels, hints in empty boxes, and names for assistive technology.
inline constexpr Text FieldName = u"Field name";
inline constexpr Text FieldType = u"Field type";
inline constexpr Text PageName = u"Page name";
inline constexpr Text CurrentPage = u"Page";
inline constexpr Text Pages = u"Pages";
}  // namespace fieldpages

/// The new-file wizard.
namespace wizard {
inline constexpr Text PageNameTip = u"Enter Page Name";
inline constexpr Text Title = u"Create Card Fields";
inline constexpr Text MainNameTip = u"Enter Main Field Name -- This Will Appear on Each Page";
inline constexpr Text FieldTypeTip = u"Choose Field Type -- This Will Influence the Nature of Your Query";
inline constexpr Text FieldCountTip = u"Enter Number of Fields per Page";
inline constexpr Text ChangeCount = u"No. of fields per page";
inline constexpr Text ChangeCountTip = u"Determine the Number of Fields per Page and Click to View";
inline constexpr Text OkTip = u"Click OK After Determining All Fields for Your Cards";
inline constexpr Text EnterFirstFieldName = u"Please enter a name for your first field.";
/// What the screen says of its own boxes.
inline constexpr Text MainField = u"Main field";
inline constexpr Text FieldCount = u"Number of fields on this page";
inline constexpr std::array<Text, 10> PageTips{
    u"Click to Create Card Fields for Sheet 1", u"Click to Create Card Fields for Sheet 2",
    u"Click to Create Card Fields for Card 3",  u"Click to Create Card Fields for Sheet 4",
    u"Click to Create Card Fields for Sheet 5", u"Click to Create Card Fields for Sheet 6",
    u"Click to Create Card Fields for Sheet 7", u"Click to Create Card Fields for Sheet 8",
    u"Click to Create Card Fields for Sheet 9", u"Click to Create Card Fields for Sheet 10",
};
}  // namespace wizard

/// The field editor.
namespace fieldeditor {
inline constexpr Text Title = u"Add/Delete File Fields";
inline constexpr Text PageNameTip = u"Enter Name of Page";
inline constexpr Text NewNameTip = u"Enter Name of Field You Wish to Add";
inline constexpr Text KindTip = u"Choose Type of Field. Your Choice Will Influence Query Options";
inline constexpr Text Add = u"Add";
inline constexpr Text AddTip = u"Click to Enter New Name";
inline constexpr Text DeleteTip = u"Click to Delete Field";
inline constexpr Text Apply = u"Apply";
inline constexpr Text ApplyTip = u"Click to Enter New Page Name";
inline constexpr Text OkTip = u"Click OK to Save Changes";
inline constexpr std::array<Text, 10> PageTips{
    u"Click to Create Card  Fields for Sheet 1", u"Click to Create Card  Fields for Sheet 2",
    u"Click to Create Card  Fields for Sheet 3", u"Click to Create Card  Fields for Sheet 4",
    u"Click to Create Card  Fields for Sheet 5", u"Click to Create Card  Fields for Sheet 6",
    u"Click to Create Card  Fields for Sheet 7", u"Click to Create Card  Fields for Sheet 8",
    u"Click to Create Card  Fields for Sheet 9", u"Click to Create Card  Fields for Sheet 10",
};
inline constexpr Text FileIsFull =
    u"You have 100 fields in file\r\nIn order to add a field you must delete one or more fields.";
inline constexpr Text FirstFieldStays = u"You can't delete the first field!";
inline constexpr Text SelectAField = u"Please select name of field.";
inline constexpr Text DeleteQuestion = u"Do you wish to delete this field?";
/// What the screen says of its boxes.
inline constexpr Text NewField = u"New field";
inline constexpr Text FieldsOfPage = u"Fields of this page";
/// What the question brings with it; %1 is a number.
inline constexpr Text NoQueryGoes = u"No saved query goes with it.";
inline constexpr Text OneQueryGoes = u"1 saved query goes with it.";
inline constexpr Text QueriesGo = u"%1 saved queries go with it.";
/// Notices; %1 is what the file said, or a number of characters.
inline constexpr Text PageIsFull = u"A page holds 21 fields and no more.";
inline constexpr Text NameTheField = u"Enter a name for the new field.";
inline constexpr Text ColumnTaken = u"A field of this name is there already, in whatever case.";
inline constexpr Text ProgramsColumn = u"The program needs this name itself.";
inline constexpr Text TableTaken = u"The value list of this field would take the name of another table.";
inline constexpr Text ReminderTaken = u"The reminders of this field would take the place of others.";
inline constexpr Text NameTooLong = u"The name of this kind of field has %1 characters at most.";
inline constexpr Text TooLongForTelephone =
    u"A name of more than %1 characters cannot be chosen for the telephone or fax number.";
inline constexpr Text NotAdded = u"The field was not added: %1";
inline constexpr Text AddedInPart = u"The field was added, but not all that goes with it: %1";
inline constexpr Text ColumnWithoutField = u"Only the column of the field was made, and it is on no page: %1";
inline constexpr Text NameThePage = u"Enter a name for the page.";
inline constexpr Text PageWithoutFields = u"A page without fields has no name.";
inline constexpr Text PageNotNamed = u"The page was not named: %1";
inline constexpr Text DeletedAndClosed = u"The field is deleted.";
}  // namespace fieldeditor

/// The card viewer.
namespace viewer {
inline constexpr Text Title = u"Customer Cards";
inline constexpr Text CardNo = u"Card No:";
inline constexpr Text OkTip = u"Click OK to Save Changes";
inline constexpr Text CancelTip = u"Click Cancel to Exit with No Changes";
inline constexpr Text HelpTip = u"Click for Help";
inline constexpr Text NumberTip = u"Card No.";
inline constexpr Text NameTip = u"Name of Customer/Name of Card";
inline constexpr Text NumberFieldTip = u"Numerical Field";
inline constexpr Text CheckFieldTip = u"Yes/No Field";
inline constexpr Text CommentTip = u"Comments on Customer";
inline constexpr Text PageTip = u"Data Sheet for Card";
inline constexpr Text EnterName = u"Enter name of card.";
inline constexpr Text SimilarTitle = u"Check name of card";
inline constexpr Text SimilarQuestion =
    u"This name already exists in the file \r\nPress \"Enter\" to view a list of similar names.";
}  // namespace viewer

/// The card editor.
namespace editor {
inline constexpr Text Title = u"Create a New Customer Card";
inline constexpr Text OkTip = u"Click OK to Confirm Your Changes";
inline constexpr Text GetEmpty = u"Card No.";
inline constexpr Text GetEmptyTip = u"Click to Receive the Lowest Available Number";
inline constexpr Text NumberTip = u"Current Customer Card No.";
inline constexpr Text NameTip = u"Name of Customer Card Will Appear on All Pages";
inline constexpr Text CommentTip =
    u"Enter General Comments for Customer Card -- These Comments Will Appear on All Data Sheets";
inline constexpr Text PageTip = u"Click to Receive an Additional Data Sheet";
inline constexpr Text SpecifyMainField = u"Please specify main field name.";
inline constexpr Text NumberExists = u"This number already exists!";
inline constexpr Text NumberMissing = u"The card was not saved: it has no number.";
inline constexpr Text NumberTaken = u"The card was not saved: another card has this number.";
inline constexpr Text SimilarTitle = u"Check names";
inline constexpr Text SimilarQuestion =
    u"This name already exists in the file\r\nClick \"OK\" to view a list of similar names.";
}  // namespace editor

/// Both card screens: what assistive technology says of the controls without a text.
namespace card {
inline constexpr Text EnlargeComment = u"Enlarge the comments";
inline constexpr Text ShrinkComment = u"Shrink the comments";
inline constexpr Text Comment = u"Comments";
inline constexpr Text DoesNotExist = u"The card does not exist";
/// Before the name of the card.
inline constexpr Text DeleteQuestion = u"Are you sure you want to delete this card?\r\nCard Name :";
/// A notice; behind it stands why, with the field when it is one field's fault.
inline constexpr Text NotSaved = u"The card was not saved. ";
inline constexpr Text NoLongerThere = u"The card was not saved: it is no longer in the file.";
}  // namespace card

/// The reminder dialog.
namespace reminder {
inline constexpr Text Title = u"Date Setting";
inline constexpr Text OrderTip = u"Click to Set  Reminder -- The Button Turns Red When Activated.";
inline constexpr Text ListTip = u"Click to View List of  Selected Agents";
inline constexpr Text Edit = u"Edit";
inline constexpr Text EditTip = u"Click to Select Agents to Receive Reminders";
inline constexpr Text Agent = u"Agent";
inline constexpr Text Reminder = u"Reminder";
inline constexpr Text LabelTip = u" View List of Selected Agents";
inline constexpr Text SelectADifferentDate = u"Please select a different date!";
}  // namespace reminder

/// The value lists of text fields.
namespace valuelist {
inline constexpr Text Title = u"Update Card Fields";
inline constexpr Text NewValue = u"New value";
inline constexpr Text Add = u"Add";
inline constexpr Text AddTip = u"Enter Data and Click Here";
inline constexpr Text DeleteTip = u"Choose Item and Click to Delete";
inline constexpr Text Update = u"Update";
inline constexpr Text EditorUpdateTip = u"Choose Data and Click to Update";
inline constexpr Text ViewerUpdateTip = u"Choose Items and Click to Update";
}  // namespace valuelist

/// The date controls.
namespace date {
/// Sunday first.
inline constexpr std::array<Text, 7> WeekDays{u"Sun", u"Mon", u"Tue", u"Wed", u"Thu", u"Fri", u"Sat"};
inline constexpr Text DayUp = u"Next day";
inline constexpr Text DayDown = u"Previous day";
inline constexpr Text MonthUp = u"Next month";
inline constexpr Text MonthDown = u"Previous month";
inline constexpr Text YearUp = u"Next year";
inline constexpr Text YearDown = u"Previous year";
}  // namespace date

/// The entry of times.
namespace time {
inline constexpr Text HourUp = u"Next hour";
inline constexpr Text HourDown = u"Previous hour";
inline constexpr Text QuarterUp = u"Next quarter of an hour";
inline constexpr Text QuarterDown = u"Previous quarter of an hour";
inline constexpr Text MinuteUp = u"Next minute";
inline constexpr Text MinuteDown = u"Previous minute";
inline constexpr Text Now = u"Now";
inline constexpr Text NoTime = u"0:00";
}  // namespace time

/// Queries.
namespace query {
/// The entry of the list of saved queries that narrows nothing.
inline constexpr Text All = u"All";
inline constexpr Text MyQuery = u"My Query";
inline constexpr Text OverwriteQuestion = u"Overwrite existing query?";
/// The heading of the card number in a result, and its place in the sort lists.
inline constexpr Text Number = u"Number";

/// The query screen.
inline constexpr Text Title = u"Preparation of Query Components";
inline constexpr Text PageTip = u"Click to View an Additional Page of Categories/Fields";
inline constexpr Text FieldTip = u"Click to View Query Components";
inline constexpr Text ListTip = u"Click to View your Selected Query Field Components";
inline constexpr Text AndType = u"AND  Type  Query";
inline constexpr Text OrType = u"OR Type Query";
inline constexpr Text DataHeading = u"Choice of Query Data";
inline constexpr Text BaseTip = u"Choose the Name of a Query";
/// What assistive technology says of the list of saved queries.
inline constexpr Text SavedQuery = u"Search among the results of";
inline constexpr Text OkTip = u"Click OK after You Have Chosen All Query Components";
inline constexpr Text CancelTip = u"Click Cancel to Exit ";
inline constexpr Text HelpTip = u"Click for Help";
}  // namespace query

/// The dialogs that pick the conditions of one field.
namespace picker {
inline constexpr Text TextTitle = u"Contents of Card Field";
inline constexpr Text TextFrame = u"Choice of Data for Query";
inline constexpr Text Fields = u"Fields:";
inline constexpr Text FieldsTip = u"Choose Fields for Query not Included In List";
inline constexpr Text QueryFields = u"Query Fields";
inline constexpr Text BoxTip = u"Enter Query Field and Click OK / Double Click to View Multi-Variable";
inline constexpr Text ListTip = u"Choose Query Fields and Click OK";
inline constexpr Text TextOkTip = u"Choose the Fields Required for the Query and Click OK";
inline constexpr Text MultiTitle = u"Choose a Multi-Variable Query";
inline constexpr Text MultiUpdateTip = u"Choose Item and Click to Update";
inline constexpr Text NumberTitle = u"Choice of Numerical Data";
inline constexpr Text NumberLimits = u"Determine Numerical Limits";
inline constexpr Text NumberLimitsTip =
    u"Determine values less than or greater than the required number. Use of both tables will allow you to "
    u"determine double limits such as <5 and >10.";
inline constexpr Text OperatorTip = u"Select <,>, =";
inline constexpr Text NumberTip = u"Enter Number";
inline constexpr Text NameOfField = u"Name of Field";
inline constexpr Text NumberOkTip = u"Choose the Required Values and Click OK";
inline constexpr Text ExitTip = u"Click to Exit ";
inline constexpr Text YesNoTitle = u"Choose Yes/No";
inline constexpr Text YesNoOkTip = u"Click to Confirm Setting";
/// What assistive technology says of the boxes.
inline constexpr Text TextToFind = u"Text to look for";
inline constexpr Text Operator = u"Comparison";
inline constexpr Text Number = u"Number";
}  // namespace picker

/// The field chooser.
namespace chooser {
inline constexpr Text Title = u"Choice of Query Fields";
inline constexpr Text GeneralList = u"General List  of Fields";
inline constexpr Text GeneralListTip =
    u"Choose the Desired Fields and Transfer them with the Arrows in order to Include them in the Queries";
inline constexpr Text QueryList = u"Query Field List";
inline constexpr Text QueryListTip = u"List  of Fields that Will Appear in Your Query";
inline constexpr Text AddTip =
    u"First Choose the Desired Fields and then Transfer the Fields with the Arrows";
inline constexpr Text RemoveTip =
    u"Choose Fields and Click Arrow to Return Field from Query List  to General List";
inline constexpr Text AddAll = u"Select All";
inline constexpr Text AddAllTip = u"Transfer All Fields in List to Query";
inline constexpr Text RemoveAllTip = u"Choose Fields you Wish to Delete and Click Here";
inline constexpr Text QueryName = u"Query Name";
inline constexpr Text QueryNameTip = u"Enter Query Name";
inline constexpr Text OkTip = u"Click OK Only After Choosing Query Fields";
inline constexpr Text CancelTip = u"Click to Exit ";
inline constexpr Text HelpTip = u"Click for Help";
/// What assistive technology says of the buttons that show an arrow.
inline constexpr Text Add = u"Add to the query";
inline constexpr Text Remove = u"Remove from the query";
inline constexpr Text RemoveAll = u"Remove all from the query";
}  // namespace chooser

/// The results of a query.
namespace result {
inline constexpr Text Title = u"Query Results";
inline constexpr Text QueryName = u"Query Name:";
inline constexpr Text Total = u"Total :";
inline constexpr std::array<Text, 3> SortLabels{u"Sort  by :", u"Then By :", u"Then By:"};
inline constexpr Text SortTip = u"Click to Select Field for Alphabetic Sorting";
inline constexpr Text Ascending = u"Ascending";
inline constexpr Text Descending = u"Descending";
inline constexpr Text DirectionTip = u"Refers to \"Sort By\" Field Only";
inline constexpr Text Sort = u"Sort";
inline constexpr Text SortButtonTip = u"Enter Definitions and Click Sort";
inline constexpr Text Card = u"Card";
inline constexpr Text CardTip = u"Choose the Card and Click to View Card  or Double Click Name of Card";
inline constexpr Text Print = u"Print";
inline constexpr Text PrintTip = u"Click to View Print Options";
inline constexpr Text Rows = u"Cards found";
}  // namespace result

/// The list of stored queries.
namespace querylist {
inline constexpr Text Title = u"Query List";
inline constexpr Text ViewTip = u"Choose Name of Query and Click to View";
inline constexpr Text DeleteTip = u"Choose a Query and Click to Delete";
inline constexpr Text Queries = u"Queries";
}  // namespace querylist

/// The options.
namespace options {
inline constexpr Text Title = u"Options";
inline constexpr Text OkTip = u"Click OK to Confirm Settings and Exit";
inline constexpr Text Apply = u"Apply";
inline constexpr Text ApplyTip = u"Click to Confirm ";

inline constexpr Text General = u"General";
inline constexpr Text TelephoneField = u"Tel. No. Field";
inline constexpr Text TelephoneFieldTip =
    u"Choose a Card Field for Telephone No. -- This Will Enable Quick Search Identification";
inline constexpr Text FaxField = u"Fax No. Field";
inline constexpr Text FaxFieldTip = u"Choose Card Field for Fax ";
inline constexpr Text Tax = u"Enter Tax Percentage";
inline constexpr Text TaxTip = u"Enter Tax Percentage. Will Appear in Prices and Price Lists";
inline constexpr Text Modem = u"Modem settings";
inline constexpr std::array<Text, 4> ModemPorts{u"COM 1", u"COM 2", u"COM 3", u"COM 4"};
inline constexpr Text InsideUsa = u"Inside USA";

inline constexpr Text Buttons = u"Buttons";
inline constexpr std::array<Text, 3> ShortcutButtons{u"Shortcut button 1", u"Shortcut button 2",
                                                     u"Shortcut button 3"};
inline constexpr Text ProgramTip = u"File Intended for Shortcut Button";
inline constexpr Text File = u"File";
inline constexpr Text FileTip = u"Click to Choose File for Shortcut Button";
inline constexpr Text PicturesTip = u"Select Icon and Click Save";
inline constexpr Text Save = u"Save";
inline constexpr Text SaveTip = u"First Select Button, File and Icon and then Click Save";

inline constexpr Text Dialing = u"Dialing";
inline constexpr Text OutsideLine = u"External";
inline constexpr Text AreaCode = u"Area Code";

inline constexpr Text Internet = u"Internet";
inline constexpr Text EmailAddress = u"Email address";
inline constexpr Text MailServer = u"Mail Server";
inline constexpr Text MailTip = u"Enter your settings in order to enable you to send e-mail messages";
inline constexpr Text Browser = u"Internet browser";
inline constexpr Text Browse = u"Browse...";

inline constexpr Text Background = u"Background";
inline constexpr Text UseBackground = u"Use background";
inline constexpr Text BackgroundTip = u"Enter your settings for changing background";
inline constexpr Text Preview = u"Preview of the background";
inline constexpr Text FileDoesNotExist = u"The file does not exist.";

inline constexpr Text WordProcessor = u"Word Processor";
inline constexpr std::array<Text, 2> WordProcessors{u"Word 7 / Office 95", u"Word 8 / Office 97"};

/// The filters of the file dialogs.
inline constexpr Text ProgramFilter = u"(*.exe)|*.exe";
inline constexpr Text PictureFilter = u"(*.jpg)|*.jpg| (*.bmp)|*.bmp";

/// Notices. The first two take the name of the field.
inline constexpr Text FieldNameTooLong =
    u"The field \"%1\" was not stored: its name has more than 40 characters.";
inline constexpr Text FieldNotStored = u"The field \"%1\" was not stored. ";
inline constexpr Text TaxTooHigh = u"A tax percentage has two digits at most.";
inline constexpr Text EmptyKeepsOld = u"An empty box does not replace what is stored.";
inline constexpr Text NoSuchProgram = u"There is no such file: the box was emptied.";
inline constexpr Text NotAProgram = u"This file was not taken: it is no program that can be started.";
inline constexpr Text NothingSaved = u"Nothing was saved: there is no such file.";
inline constexpr Text NoButtonPressed = u"Nothing was saved: press one of the three buttons first.";
inline constexpr Text PictureNotLoaded = u"This picture cannot be loaded.";
inline constexpr Text TypedBackground = u"A typed name counts when \"Use background\" is ticked after it.";
/// Before the file that holds the settings.
inline constexpr Text NotStored = u"The settings could not be written to ";

/// What the pictures for the shortcut buttons show.
inline constexpr Text PictureStart = u"Start";
inline constexpr Text PictureText = u"Text";
inline constexpr Text PictureList = u"List";
inline constexpr Text PictureChart = u"Chart";
inline constexpr Text PictureNote = u"Note";
inline constexpr Text PictureBrush = u"Brush";
inline constexpr Text PicturePhoto = u"Photo";
inline constexpr Text PictureFolder = u"Folder";
inline constexpr Text PictureMail = u"Mail";
inline constexpr Text PictureGlobe = u"Globe";
inline constexpr Text PictureCalendar = u"Calendar";
inline constexpr Text PictureTools = u"Tools";
}  // namespace options

/// What the two search screens share.
namespace search {
inline constexpr Text CardsTab = u"Cards";
inline constexpr Text ContactsTab = u"Contacts";
inline constexpr Text NumberHeading = u"No.";
inline constexpr Text Card = u"Card";
inline constexpr Text Print = u"Print";
inline constexpr Text PrintTip = u"Click to View Print Options";
inline constexpr Text HelpTip = u"Click for Help";
inline constexpr Text SortBy = u"Sort by:";
inline constexpr std::array<Text, 2> CardOrders{u"No.", u"Name"};
inline constexpr std::array<Text, 3> ContactOrders{u"No.", u"First Name", u"Last Name"};
inline constexpr Text NameOrNumber = u"Find:";
/// What assistive technology says of the tabs and the grids.
inline constexpr Text Tabs = u"What to search";
inline constexpr Text Cards = u"Cards found";
inline constexpr Text Contacts = u"Contacts found";
/// Notices: what is refused without a message.
inline constexpr Text NoCardChosen = u"No card is chosen: click one in the list first.";
inline constexpr Text Failed = u"The search failed: ";
inline constexpr Text NoPrinting = u"This program does not print lists.";
inline constexpr Text NoContactCard =
    u"Contacts have no screen of their own: type the number of their card into the box above.";
inline constexpr Text NoCardFromHere =
    u"The card does not open from this list: type its number into the box above.";
}  // namespace search

/// The quick search.
namespace quicksearch {
inline constexpr Text Title = u"Quick Search";
inline constexpr Text TelephoneTab = u"Telephone No.";
inline constexpr Text NameTip = u"Enter Name of Customer or Part of Name and Click to View Options";
inline constexpr Text Search = u"&Search";
inline constexpr Text SearchTip = u"Click to View Card Options -- Each Click Will Show Additional Options";
inline constexpr std::array<Text, 2> CardOrderTips{u"Click to Order Cards According to Card No.",
                                                   u"Click to Order Cards Alphabetically"};
inline constexpr Text CardTip = u"Choose Card and Click to View";
inline constexpr Text PrintTip = u"Click to Print";
inline constexpr Text FirstName = u"Search  by First Name";
inline constexpr Text FirstNameLabelTip = u"Enter First Name of Contact Only";
inline constexpr Text FirstNameTip = u"Enter First Name of Contact  or Part of Name and Click to Search";
inline constexpr Text FindFirstTip =
    u"Click to View Requested Contact  -- Each Click Will Show Additional Options";
inline constexpr Text LastName = u"Search by Last Name";
inline constexpr Text LastNameLabelTip = u"Enter Last Name of Contact";
inline constexpr Text LastNameTip = u"Enter Last Name of Contact and Click to View Options";
inline constexpr Text FindLastTip =
    u"Click to View Requested Contact -- Each Click Will Show Additional Options";
inline constexpr Text Find = u"Search";
inline constexpr std::array<Text, 3> ContactOrderTips{u"Click to Order Contacts According to Card No.",
                                                      u"Click to Order Contacts  According to First Name",
                                                      u"Click to Order Contacts According to Last  Name"};
inline constexpr Text Contacts = u"Contacts";
inline constexpr Text ContactTip = u"Choose Name of  Card and Click to View Contact Card";
inline constexpr Text ContactHelpTip = u"Click to Help";
inline constexpr Text ContactHeadings = u"Number |Name |Last Name";
inline constexpr Text Telephone = u"Requested Tel. No.";
inline constexpr Text TelephoneTip = u"Enter Telephone Number or Part  of Number and Click Here";
inline constexpr Text FindNumberTip = u"First Enter Number and Click to Search";
inline constexpr Text ContactNumbers = u"Telephone from Contact  List";
inline constexpr Text ContactNumberHeadings =
    u"No. |Card Name |Name |Last Name |Telephone 1 |Telephone 2 |Cellular |Fax";
inline constexpr Text CardNumbers = u"Telephone from Cards";
inline constexpr Text CardNumberHeadings = u"No. |Card Name |Telephone ";
inline constexpr Text TelephoneCardTip = u"Choose Item and Click to View Card";
inline constexpr Text ListToPrint = u"Telephone list";
inline constexpr Text CardList = u"Cards";
inline constexpr Text CardListTip = u"Click to Receive Telephone Numbers from Card Fields";
inline constexpr Text ContactList = u"Contact  List";
inline constexpr Text ContactListTip = u"Print Telephone Numbers from Contact Fields";
inline constexpr Text PrintAllTip = u"First Choose Telephone List and Click to View Print Options";
inline constexpr Text TextNotFound = u"Text not found.";
inline constexpr Text NumberNotFound = u"Number not found.";
inline constexpr Text TooFewDigits = u"Enter at least 4 digits.";
/// Notices.
inline constexpr Text NothingToSort = u"To sort, enter a name or a part of one and search first.";
inline constexpr Text NoNameTyped = u"Enter a name or a part of one first.";
}  // namespace quicksearch

/// The search by name.
namespace namesearch {
inline constexpr Text Title = u"Search";
inline constexpr Text Data = u"Data";
inline constexpr Text CardDataTip =
    u"Click to Receive Data -- Please Keep in Mind that The Length of Time Depends on the Number of Cards in "
    u"the "
    u"File ";
inline constexpr Text ContactDataTip =
    u"Click to Receive Data -- Please Remember that the Length of Waiting Time Depends on the Number of "
    u"Cards in "
    u"the File";
inline constexpr Text FindNext = u"Find Next";
inline constexpr Text FindPrevious = u"Find Previous";
inline constexpr Text NameTip = u"Enter Name of Card or Part of Name and Click to View Options";
inline constexpr Text SearchTip = u"Enter Name of Company or Part of Name and Click to View Next Option";
inline constexpr Text PreviousTip = u"Click to View Previous Option";
inline constexpr std::array<Text, 2> CardOrderTips{u"Click to Order Cards by Card Number",
                                                   u"Click to Order Cards Alphabetically"};
inline constexpr Text CardTip = u"Choose the Desired Card and Click to View Card";
inline constexpr Text ContactNameTip = u"Enter Name of Contact  or Part  of Name and Click to View Options";
inline constexpr Text FindContactTip = u"Enter Name of Contact and Click to View Options";
inline constexpr std::array<Text, 3> ContactOrderTips{u"Click to Order Contacts by Number",
                                                      u"Click to Order Contacts by First Name",
                                                      u"Click to Order Contacts by Family Name"};
inline constexpr Text Contact = u"Contact";
inline constexpr Text ContactTip =
    u"Choose the Desired Contact and Click to View Card or Double Click Name of Contact";
/// The heading of the card numbers; the main field's name follows.
inline constexpr Text NumberHeading = u"No. ";
inline constexpr Text ContactHeadings = u"No. |Name |Last Name";
inline constexpr Text End = u"You have reached the end of the text.";
inline constexpr Text Beginning = u"You have reached the beginning of the text.";
inline constexpr Text DoesNotExist = u"The text does not exist!";
/// Notices.
inline constexpr Text NoData = u"The list is empty: click Data first.";
inline constexpr Text NothingToSort = u"There is nothing to sort: the list is empty.";
inline constexpr Text NoTextTyped = u"Enter a name or a number to find first.";
}  // namespace namesearch

}  // namespace velmora::strings
