// SPDX-License-Identifier: MIT
#include "forms/LeaveCheck.h"
#include "forms/Makers.h"
#include "forms/TabChain.h"
#include "forms/Twips.h"
#include "resources/strings.h"
#include "shell/SettingTable.h"
#include "shell/ShortcutPictures.h"
#include "shell/frmOptions.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QVBoxLayout>

#include <utility>

namespace velmora {

using namespace Qt::StringLiterals;

namespace texts = strings::options;

namespace {

constexpr int boxWidth = 4200;
constexpr int numberWidth = 900;
constexpr int shortcutSide = 660;
constexpr int pictureSide = 480;
constexpr int cellSide = 720;
constexpr int previewWidth = 5400;
constexpr int previewHeight = 1500;

/// Shows each line of a list as the picture of its number alone; its text is for those who hear it.
class PictureDelegate final : public QStyledItemDelegate {
 public:
  PictureDelegate(ui::ImageList pictures, QObject* parent)
      : QStyledItemDelegate(parent), m_pictures(std::move(pictures)) {}

  QSize sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const override {
    return {ui::Pixels(cellSide), ui::Pixels(cellSide)};
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->text.clear();
    option->features = QStyleOptionViewItem::HasDecoration;
    option->icon = m_pictures.ListImage(index.row() + 1);
    option->decorationPosition = QStyleOptionViewItem::Top;
    option->decorationAlignment = Qt::AlignCenter;
    option->decorationSize = {ui::Pixels(pictureSide), ui::Pixels(pictureSide)};
  }

 private:
  ui::ImageList m_pictures;
};

QFormLayout* NewRows(QWidget* page) {
  auto* rows = new QFormLayout(page);
  rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  return rows;
}

}  // namespace

frmOptions::frmOptions()
    : Form(u"frmOptions"_s, texts::Title),
      rButton(this, u"rButton"_s, [this](ui::SSRibbon& button) { DressShortcut(button); }) {
  tabOptions = ui::NewControl<ui::SSTab>(this, u"tabOptions"_s);
  connect(tabOptions, &ui::SSTab::Click, this, [this] { repaint(); });
  SetupGeneral();
  SetupButtons();
  SetupDialing();
  SetupInternet();
  SetupBackground();
  SetupWordProcessor();
  SetupCommands();
  SetupTabOrder();
}

ui::TextBox* frmOptions::AddBox(QFormLayout& rows, const QString& name, const QString& caption,
                                const QString& tip) {
  QWidget* page = rows.parentWidget();
  auto* box = ui::NewControl<ui::TextBox>(page, name, {.Tip = tip, .Spoken = caption});
  box->setMinimumWidth(ui::Pixels(boxWidth));
  rows.addRow(ui::NewLabel(page, u"lbl"_s + name.mid(3), caption, box), box);
  return box;
}

void frmOptions::SetupGeneral() {
  QWidget* page = tabOptions->AddPage(texts::General);
  QFormLayout* rows = NewRows(page);
  const auto addList = [page, rows](const QString& name, const QString& label, const QString& caption,
                                    const QString& tip) {
    auto* list = ui::NewControl<ui::ComboBox>(page, name, {.Tip = tip, .Spoken = caption});
    list->SetMode(ui::ComboMode::DropDownList);
    list->setMinimumWidth(ui::Pixels(boxWidth));
    rows->addRow(ui::NewLabel(page, label, caption, list), list);
    return list;
  };
  cmdListFields =
      addList(u"cmdListFields"_s, u"lblListFields"_s, texts::TelephoneField, texts::TelephoneFieldTip);
  cmbListFax = addList(u"cmbListFax"_s, u"lblListFax"_s, texts::FaxField, texts::FaxFieldTip);
  txtMaam = AddBox(*rows, u"txtMaam"_s, texts::Tax, texts::TaxTip);
  txtMaam->setMinimumWidth(0);
  txtMaam->setFixedWidth(ui::Pixels(numberWidth));
  connect(txtMaam, &ui::TextBox::Change, this, &frmOptions::CheckTax);
  SetupModem(*rows);
  chUSA = ui::NewControl<ui::CheckBox>(page, u"chUSA"_s);
  chUSA->SetCaption(texts::InsideUsa);
  rows->addRow(chUSA);
}

void frmOptions::SetupModem(QFormLayout& rows) {
  auto* frame = ui::NewControl<ui::GroupFrame>(rows.parentWidget(), u"Frame1"_s);
  frame->SetCaption(texts::Modem);
  auto* ports = new QHBoxLayout(frame);
  for (std::size_t i = 0; i < opt.size(); ++i) {
    opt.at(i) = ui::NewControl<ui::OptionButton>(frame, u"opt%1"_s.arg(i + 1));
    opt.at(i)->SetCaption(texts::ModemPorts.at(i));
    ports->addWidget(opt.at(i));
  }
  rows.addRow(frame);
}

void frmOptions::DressShortcut(ui::SSRibbon& button) {
  const auto index = static_cast<std::size_t>(button.Index());
  button.setAccessibleName(texts::ShortcutButtons.at(index));
  button.setIconSize({ui::Pixels(pictureSide), ui::Pixels(pictureSide)});
  button.setFixedSize(ui::Pixels(shortcutSide), ui::Pixels(shortcutSide));
  connect(&button, &ui::SSRibbon::Click, this,
          [this, index] { txtNameFile->SetText(Read(settings::ShortcutPrograms.at(index))); });
}

void frmOptions::SetupButtons() {
  QWidget* page = tabOptions->AddPage(texts::Buttons);
  auto* column = new QVBoxLayout(page);
  auto* shortcuts = new QHBoxLayout;
  const ui::ImageList pictures = ShortcutButtonPictures();
  QList<ui::SSRibbon*> mates;
  for (int i = 0; i < static_cast<int>(settings::ShortcutPrograms.size()); ++i) {
    ui::SSRibbon& button = rButton.LoadOnce(i);
    button.setIcon(pictures.ListImage(i + 1));
    shortcuts->addWidget(&button);
    button.SetVisible(true);
    mates += &button;
  }
  ui::SSRibbon::Group(mates);
  shortcuts->addStretch();

  txtNameFile = ui::NewControl<ui::TextBox>(page, u"txtNameFile"_s,
                                            {.Tip = texts::ProgramTip, .Spoken = texts::ProgramTip});
  cmdSearchFile = ui::NewCommand(page, u"cmdSearchFile"_s, texts::File, texts::FileTip);
  connect(cmdSearchFile, &ui::SSCommand::Click, this, [this] {
    if (const auto program = ChooseProgram(cmdSearchFile)) txtNameFile->SetText(*program);
  });
  auto* file = new QHBoxLayout;
  file->addWidget(txtNameFile, 1);
  file->addWidget(cmdSearchFile);

  lstIcon = ui::NewControl<ui::ListBox>(page, u"lstIcon"_s,
                                        {.Tip = texts::PicturesTip, .Spoken = texts::PicturesTip});
  lstIcon->setItemDelegate(new PictureDelegate(ShortcutPictures(), lstIcon));
  lstIcon->setFlow(QListView::LeftToRight);
  lstIcon->setWrapping(true);
  lstIcon->setResizeMode(QListView::Adjust);
  lstIcon->setMinimumHeight(2 * ui::Pixels(cellSide));

  cmdSavePath = ui::NewCommand(page, u"cmdSavePath"_s, texts::Save, texts::SaveTip);
  connect(cmdSavePath, &ui::SSCommand::Click, this, &frmOptions::SaveShortcut);
  column->addLayout(shortcuts);
  column->addLayout(file);
  column->addWidget(lstIcon, 1);
  column->addLayout(ui::NewButtonRow({}, {cmdSavePath}));
}

void frmOptions::SetupDialing() {
  QFormLayout* rows = NewRows(tabOptions->AddPage(texts::Dialing));
  txtPrefix = AddBox(*rows, u"txtPrefix"_s, texts::OutsideLine);
  txtArea = AddBox(*rows, u"txtArea"_s, texts::AreaCode);
}

void frmOptions::SetupInternet() {
  QWidget* page = tabOptions->AddPage(texts::Internet);
  QFormLayout* rows = NewRows(page);
  txtEmail = AddBox(*rows, u"txtEmail"_s, texts::EmailAddress, texts::MailTip);
  txtMailServer = AddBox(*rows, u"txtMailServer"_s, texts::MailServer, texts::MailTip);
  txtBrowser = AddBox(*rows, u"txtBrowser"_s, texts::Browser);
  ui::CheckOnLeave(txtBrowser, [this]() -> QWidget* {
    CheckBrowser();
    return nullptr;
  });
  cmdAddFile = ui::NewCommand(page, u"cmdAddFile"_s, texts::Browse);
  rows->addRow(ui::NewButtonRow({}, {cmdAddFile}));
  connect(cmdAddFile, &ui::SSCommand::Click, this, [this] {
    if (const auto program = ChooseProgram(cmdAddFile)) txtBrowser->SetText(*program);
  });
}

void frmOptions::SetupBackground() {
  QWidget* page = tabOptions->AddPage(texts::Background);
  chkUseBackground = ui::NewControl<ui::CheckBox>(page, u"chkUseBackground"_s);
  chkUseBackground->SetCaption(texts::UseBackground);
  connect(chkUseBackground, &ui::CheckBox::Click, this, &frmOptions::UseBackgroundClick);

  txtBackGround = ui::NewControl<ui::TextBox>(page, u"txtBackGround"_s,
                                              {.Tip = texts::BackgroundTip, .Spoken = texts::BackgroundTip});
  connect(txtBackGround, &ui::TextBox::Change, this, [this] { m_backgroundTyped = true; });
  ui::CheckOnLeave(txtBackGround, [this]() -> QWidget* {
    BackgroundTyped();
    return nullptr;
  });
  cmdBackGround = ui::NewCommand(page, u"cmdBackGround"_s, texts::Browse);
  connect(cmdBackGround, &ui::SSCommand::Click, this, &frmOptions::ChooseBackground);
  auto* file = new QHBoxLayout;
  file->addWidget(txtBackGround, 1);
  file->addWidget(cmdBackGround);

  picBackGround = ui::NewControl<PicturePreview>(page, u"picBackGround"_s, {.Spoken = texts::Preview});
  picBackGround->setMinimumSize(ui::Pixels(previewWidth), ui::Pixels(previewHeight));
  auto* column = new QVBoxLayout(page);
  column->addWidget(chkUseBackground);
  column->addLayout(file);
  column->addWidget(picBackGround, 1);
}

void frmOptions::SetupWordProcessor() {
  QWidget* page = tabOptions->AddPage(texts::WordProcessor);
  cmbTextEditor = ui::NewControl<ui::ComboBox>(page, u"cmbTextEditor"_s, {.Spoken = texts::WordProcessor});
  cmbTextEditor->SetMode(ui::ComboMode::DropDownList);
  for (const strings::Text& processor : texts::WordProcessors) cmbTextEditor->AddItem(processor);
  cmbTextEditor->setMinimumWidth(ui::Pixels(boxWidth));
  auto* column = new QVBoxLayout(page);
  column->addWidget(cmbTextEditor, 0, Qt::AlignLeft);
  column->addStretch();
}

void frmOptions::SetupCommands() {
  EditData = ui::NewCommand(this, u"EditData"_s, strings::Ok, texts::OkTip);
  CancelData = ui::NewCommand(this, u"CancelData"_s, strings::Cancel, strings::ClickToExit);
  cmdApply = ui::NewCommand(this, u"cmdApply"_s, texts::Apply, texts::ApplyTip);
  connect(EditData, &ui::SSCommand::Click, this, [this] {
    Apply(Tell::InStrip);
    Unload();
  });
  connect(CancelData, &ui::SSCommand::Click, this, [this] { Unload(); });
  connect(cmdApply, &ui::SSCommand::Click, this, [this] { Apply(Tell::Here); });
  auto* column = new QVBoxLayout(this);
  // No tab is out of sight.
  tabOptions->setMinimumWidth(tabOptions->tabBar()->sizeHint().width());
  column->addWidget(tabOptions, 1);
  column->addLayout(ui::NewButtonRow({}, {EditData, CancelData, cmdApply}));
}

void frmOptions::SetupTabOrder() {
  QList<QWidget*> stops{tabOptions->tabBar(), cmdListFields, cmbListFax, txtMaam};
  for (ui::OptionButton* port : opt) stops += port;
  stops += chUSA;
  stops += rButton.Widgets();
  stops += {txtNameFile,   cmdSearchFile, lstIcon,    cmdSavePath, txtPrefix,        txtArea,
            txtEmail,      txtMailServer, txtBrowser, cmdAddFile,  chkUseBackground, txtBackGround,
            cmdBackGround, cmbTextEditor, EditData,   CancelData,  cmdApply};
  ui::ChainTabStops(stops);
}

}  // namespace velmora
