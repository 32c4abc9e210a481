// SPDX-License-Identifier: MIT
#include "shell/frmOptions.h"

#include "base/settings/Settings.h"
#include "base/system/Failures.h"
#include "base/system/Files.h"
#include "base/system/Shell.h"
#include "cardfile/FieldCatalogue.h"
#include "cardfile/Options.h"
#include "cards/ShowTable.h"
#include "forms/Default.h"
#include "forms/MsgBox.h"
#include "forms/Notice.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "shell/MainStrip.h"
#include "shell/SettingTable.h"
#include "shell/ShortcutPictures.h"

#include <QDir>

#include <algorithm>
#include <utility>

namespace velmora {

using namespace Qt::StringLiterals;

namespace texts = strings::options;

namespace {

/// A name of the background that stands for no picture file.
bool IsFile(const QString& background) {
  return !background.isEmpty() && background != settings::NoWallpaper &&
         background != settings::DefaultWallpaper;
}

bool CannotBeLoaded(const QString& background) { return IsFile(background) && QPixmap(background).isNull(); }

/// The stored background of the strip, when it is a file that cannot be shown.
bool StoredBackgroundFails() {
  return Read(settings::UseBackground) && CannotBeLoaded(Read(settings::Wallpaper));
}

std::optional<QString> Chosen(const ui::ComboBox& list) {
  return list.ListIndex() < 0 ? std::nullopt : std::optional(list.Text());
}

/// Where programs are looked for: the desktop's entries for them have names that a user knows.
QString HomeOfPrograms() {
  const QString entries = u"/usr/share/applications"_s;
  return QDir(entries).exists() ? entries : u"/usr/bin"_s;
}

}  // namespace

void frmOptions::OnLoad() {
  chUSA->SetValue(Global().IsUsa == True ? 1 : 0);
  LoadBackground();
  const std::int32_t port = Global().ModemPort;
  if (port >= 1 && port <= static_cast<std::int32_t>(opt.size()))
    opt.at(static_cast<std::size_t>(port - 1))->SetValue(true);
  lstIcon->AddItems(ShortcutPictureNames());
  LoadFields();
  LoadTexts();
}

void frmOptions::LoadBackground() {
  const bool used = Read(settings::UseBackground);
  chkUseBackground->SetValue(used ? 1 : 0);
  txtBackGround->SetText(used ? Read(settings::OfferedWallpaper) : settings::NoWallpaper.toString());
  if (!CannotBeLoaded(txtBackGround->Text())) ShowPicture(txtBackGround->Text());
}

void frmOptions::LoadFields() {
  QStringList fields;
  IgnoringErrors([&fields] { fields = NumberFields(CatalogueRows()); });
  for (ui::ComboBox* list : {cmdListFields, cmbListFax}) {
    for (const QString& field : fields) list->AddItem(field);
  }
  IgnoringErrors(
      [&] { cmdListFields->SetListIndex(PlaceOfField(fields, Options(Global().File()).TelephoneField())); });
  IgnoringErrors(
      [&] { cmbListFax->SetListIndex(PlaceOfField(fields, Options(Global().File()).FaxField())); });
}

void frmOptions::LoadTexts() {
  const OptionValues values = ReadOptions();
  if (values.WordProcessor >= 0 && values.WordProcessor < cmbTextEditor->ListCount())
    cmbTextEditor->SetListIndex(values.WordProcessor);
  txtMaam->SetText(values.Tax);
  txtNameFile->SetText(Read(settings::ShortcutPrograms.front()));
  txtPrefix->SetText(values.OutsideLine);
  txtArea->SetText(values.AreaCode);
  txtMailServer->SetText(values.MailServer);
  txtEmail->SetText(values.EmailAddress);
  txtBrowser->SetText(values.Browser);
}

void frmOptions::OnActivate() {
  if (StoredBackgroundFails()) ui::Notify(picBackGround, texts::PictureNotLoaded);
}

void frmOptions::Apply(Tell where) {
  const auto tell = [where](QWidget* about, const QString& notice) {
    if (where == Tell::Here) {
      ui::Notify(about, notice);
    } else {
      ui::Notify(notice);
    }
  };
  const QString told = std::exchange(m_toldOnLeaving, {});
  const OptionValues values = Values();
  const bool leavesOld = LeavesStoredText(values);
  const auto fault = StoreFields(Chosen(*cmdListFields), Chosen(*cmbListFax));
  const bool stored = StoreOptions(values);
  Frame::Main().ResLoaderMain();
  UpdateBackground();
  // There is one notice at a time: the one that matters most.
  if (!stored) {
    tell(cmdApply, texts::NotStored + SettingsFile());
  } else if (fault) {
    tell(fault->Field == FieldNotStored::Which::Telephone ? cmdListFields : cmbListFax, fault->Notice);
  } else if (!told.isEmpty()) {
    if (where == Tell::InStrip) ui::Notify(told);
  } else if (StoredBackgroundFails()) {
    tell(picBackGround, texts::PictureNotLoaded);
  } else if (leavesOld) {
    tell(cmdApply, texts::EmptyKeepsOld);
  }
}

OptionValues frmOptions::Values() const {
  return {.Tax = txtMaam->Text(),
          .OutsideLine = txtPrefix->Text(),
          .AreaCode = txtArea->Text(),
          .ModemPort = ChosenPort(),
          .MailServer = txtMailServer->Text(),
          .EmailAddress = txtEmail->Text(),
          .InsideUsa = chUSA->Value() == 1,
          .Browser = txtBrowser->Text(),
          .WordProcessor = cmbTextEditor->ListIndex()};
}

std::int32_t frmOptions::ChosenPort() const {
  const auto chosen = std::ranges::find_if(opt, &ui::OptionButton::Value);
  return chosen == opt.end() ? 0 : static_cast<std::int32_t>(chosen - opt.begin()) + 1;
}

void frmOptions::UpdateBackground() {
  if (Frame::Main().GetActive() == ActiveShowTable)
    ui::Default<ShowTable>().setWindowIcon(Frame::Main().ScreenIcon());
}

void frmOptions::TellUnlessStored(QWidget* about, bool stored) {
  if (!stored) ui::Notify(about, texts::NotStored + SettingsFile());
}

void frmOptions::CheckTax() {
  if (IsTax(txtMaam->Text())) return;
  txtMaam->SetText({});
  ui::Notify(txtMaam, texts::TaxTooHigh);
}

void frmOptions::TellOnLeaving(QWidget* about, const QString& notice) {
  ui::Notify(about, notice);
  m_toldOnLeaving = notice;
}

void frmOptions::CheckBrowser() {
  if (ExistFile(txtBrowser->Text()) >= 1) return;
  if (!txtBrowser->Text().isEmpty()) TellOnLeaving(txtBrowser, texts::NoSuchProgram);
  txtBrowser->SetText({});
}

std::optional<QString> frmOptions::ChooseProgram(QWidget* asked) {
  dOpenFile.Filter = texts::ProgramFilter;
  dOpenFile.DialogTitle = strings::file::OpenTitle;
  dOpenFile.InitDir = HomeOfPrograms();
  dOpenFile.ShowOpen();
  if (dOpenFile.FileName.isEmpty()) return std::nullopt;
  if (CanStart(dOpenFile.FileName)) return dOpenFile.FileName;
  ui::Notify(asked, texts::NotAProgram);
  return std::nullopt;
}

void frmOptions::SaveShortcut() {
  const QString path = txtNameFile->Text();
  if (!path.isEmpty() && ExistFile(path) < 1) {
    ui::Notify(txtNameFile, texts::NothingSaved);
    return;
  }
  for (std::size_t i = 0; i < settings::ShortcutPrograms.size(); ++i) {
    if (!rButton[static_cast<int>(i)].Value()) continue;
    TellUnlessStored(cmdSavePath, Write(settings::ShortcutPrograms.at(i), path));
    return;
  }
  ui::Notify(&rButton[0], texts::NoButtonPressed);
}

void frmOptions::UseBackgroundClick() {
  const bool used = chkUseBackground->Value() == 1;
  m_backgroundTyped = false;
  bool stored = Write(settings::UseBackground, used);
  if (used) {
    ShowPicture(txtBackGround->Text());
  } else {
    picBackGround->SetPicture({});
    txtBackGround->SetText(settings::NoWallpaper.toString());
  }
  stored &= Write(settings::Wallpaper, txtBackGround->Text());
  TellUnlessStored(chkUseBackground, stored);
}

void frmOptions::BackgroundTyped() {
  if (std::exchange(m_backgroundTyped, false) && chkUseBackground->Value() == 1)
    TellOnLeaving(txtBackGround, texts::TypedBackground);
}

void frmOptions::ChooseBackground() {
  dOpenFile.Filter = texts::PictureFilter;
  dOpenFile.DialogTitle = strings::file::OpenTitle;
  dOpenFile.InitDir = ProgramDir() + u"WPapers"_s;
  dOpenFile.ShowOpen();
  // Left without a choice the dialog names no file, which counts as one that does not exist.
  m_backgroundTyped = false;
  txtBackGround->SetText(dOpenFile.FileName);
  if (ExistFile(dOpenFile.FileName) >= 1) {
    ShowPicture(dOpenFile.FileName);
  } else {
    ui::MsgBox(texts::FileDoesNotExist);
    txtBackGround->SetText(settings::NoWallpaper.toString());
    picBackGround->SetPicture({});
  }
  const bool stored = Write(settings::Wallpaper, txtBackGround->Text());
  TellUnlessStored(cmdBackGround, stored);
}

void frmOptions::ShowPicture(const QString& name) {
  if (name == settings::DefaultWallpaper) {
    picBackGround->SetPicture(MainStrip::DefaultBackground(palette()));
  } else if (CannotBeLoaded(name)) {
    ui::Notify(picBackGround, texts::PictureNotLoaded);
  } else if (IsFile(name)) {
    picBackGround->SetPicture(QPixmap(name));
  }
}

}  // namespace velmora
