// SPDX-License-Identifier: MIT
#include "shell/frmAbout.h"

#include "engine/LibraryVersion.h"
#include "forms/Makers.h"
#include "forms/TabChain.h"
#include "forms/Twips.h"
#include "frame/Frame.h"
#include "resources/strings.h"
#include "shell/Programs.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::about;

namespace {

constexpr int pictureSide = 960;
constexpr double titleSize = 1.3;  // of the plain text

}  // namespace

frmAbout::frmAbout() : Form(u"frmAbout"_s, texts::Title) {
  lblTitle = ui::NewLabel(this, u"lblTitle"_s, {});
  QFont large = font();
  large.setPointSizeF(QFontInfo(large).pointSizeF() * titleSize);
  large.setBold(true);
  lblTitle->setFont(large);
  cmdOK = ui::NewCommand(this, u"cmdOK"_s, strings::Ok);
  cmdSysInfo = ui::NewCommand(this, u"cmdSysInfo"_s, {});
  cmdSysInfo->SetCaption(texts::SystemInformation, ui::Ampersand::AccessKey);
  connect(cmdOK, &ui::SSCommand::Click, this, [this] { Unload(); });
  connect(cmdSysInfo, &ui::SSCommand::Click, this, [] { StartSysInfo(); });
  SetupLayout();
}

void frmAbout::SetupLayout() {
  auto* picture = ui::NewLabel(this, u"picIcon"_s, {});
  picture->setPixmap(Frame::Main().ScreenIcon().pixmap(ui::Pixels(pictureSide)));
  picture->setAccessibleName(strings::ProgramName);

  auto* lines = new QVBoxLayout;
  lines->addWidget(lblTitle);
  lines->addWidget(ui::NewLabel(this, u"lblDescription"_s, texts::Description));
  lines->addSpacing(ui::Pixels(ui::TwipsPerPixel * 8));
  lines->addWidget(ui::NewLabel(this, u"lblLicence"_s, texts::Licence));
  lines->addWidget(
      ui::NewLabel(this, u"lblLibraries"_s,
                   QString(texts::Libraries).arg(QString::fromUtf8(qVersion()), db::LibraryVersion())));
  lines->addWidget(ui::NewLabel(this, u"lblAddress"_s, strings::WebAddress));
  lines->addStretch();

  auto* grid = new QGridLayout(this);
  grid->addWidget(picture, 0, 0, Qt::AlignTop);
  grid->addLayout(lines, 0, 1);
  grid->setColumnStretch(1, 1);
  grid->addLayout(ui::NewButtonRow({cmdSysInfo}, {cmdOK}), 1, 0, 1, 2);
  ui::ChainTabStops({cmdOK, cmdSysInfo});
}

void frmAbout::OnLoad() {
  setWindowIcon(Frame::Main().ScreenIcon());
  // The version's three numbers: major, minor and revision.
  lblTitle->SetCaption(texts::ProgramAndVersion + u"" VELMORA_VERSION ""_s);
}

}  // namespace velmora
