// SPDX-License-Identifier: MIT
#include "shell/frmTut.h"

#include "forms/Makers.h"
#include "forms/TabChain.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "shell/FixedText.h"

#include <QGridLayout>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::firstrun;

namespace {

constexpr double headlineGrowth = 1.6;

ui::Label* NewHeadline(QWidget* parent) {
  ui::Label* headline = ui::NewLabel(parent, u"lblWelcome"_s, texts::Welcome);
  QFont font = headline->font();
  font.setBold(true);
  font.setPointSizeF(font.pointSizeF() * headlineGrowth);
  headline->setFont(font);
  return headline;
}

/// A choice: a panel with its text and the button that takes it.
ui::GroupFrame* NewChoice(QWidget* parent, const QString& name, const QString& title, const QString& text,
                          ui::SSCommand* button) {
  auto* panel = ui::NewControl<ui::GroupFrame>(parent, name);
  panel->SetCaption(title);
  auto* rows = new QVBoxLayout(panel);
  rows->addWidget(ui::NewLabel(panel, name + u"Text"_s, WithPlainBreaks(text)), 1, Qt::AlignTop);
  rows->addLayout(ui::NewButtonRow({}, {button}));
  button->setParent(panel);
  return panel;
}

}  // namespace

frmTut::frmTut() : Form(u"frmTut"_s, strings::ProgramName) {
  auto* message = NewFixedText(this, u"txtMessage"_s, texts::WelcomeMessage, texts::Message);
  auto* samples = ui::NewControl<ui::SSCommand>(this, u"cmdSamples"_s);
  samples->SetCaption(texts::Samples, ui::Ampersand::AccessKey);
  auto* create = ui::NewCommand(this, u"EditData"_s, strings::Ok);
  auto* cancel = ui::NewControl<ui::SSCommand>(this, u"CancelData"_s);
  cancel->SetCaption(texts::Cancel, ui::Ampersand::AccessKey);

  auto* grid = new QGridLayout(this);
  grid->addWidget(NewHeadline(this), 0, 0, 1, 2);
  grid->addWidget(message, 1, 0, 1, 2);
  grid->addWidget(NewChoice(this, u"fraSamples"_s, texts::SampleTitle, texts::SampleText, samples), 2, 0);
  grid->addWidget(NewChoice(this, u"fraNew"_s, texts::NewTitle, texts::NewText, create), 2, 1);
  grid->addLayout(ui::NewButtonRow({}, {cancel}), 3, 0, 1, 2);

  ui::ChainTabStops({message, samples, create, cancel});
  create->SetFocus();
  connect(create, &ui::SSCommand::Click, this, &frmTut::NewFileClick);
  connect(samples, &ui::SSCommand::Click, this, &frmTut::SamplesClick);
  connect(cancel, &ui::SSCommand::Click, this, &frmTut::CancelClick);
}

void frmTut::OnLoad() { setWindowIcon(Frame::Main().ScreenIcon()); }

void frmTut::NewFileClick() {
  Global().ShowCreateHelp = True;
  Unload();
  NewFile();
}

void frmTut::SamplesClick() {
  Unload();
  Samples();
}

void frmTut::CancelClick() {
  Global().ShowCreateHelp = False;
  Unload();
}

}  // namespace velmora
