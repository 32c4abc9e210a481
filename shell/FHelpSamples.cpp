// SPDX-License-Identifier: MIT
#include "shell/FHelpSamples.h"

#include "forms/Makers.h"
#include "forms/TabChain.h"
#include "frame/Frame.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "shell/FixedText.h"

#include <QVBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::firstrun;

FHelpSamples::FHelpSamples() : Form(u"FHelpSamples"_s, texts::OpenSamplesTitle) {
  auto* about = NewFixedText(this, u"Text1"_s, texts::AboutSamples, texts::SamplesMessage);
  auto* ok = ui::NewCommand(this, u"cmdOK"_s, strings::Ok);
  auto* cancel = ui::NewControl<ui::SSCommand>(this, u"cmdCancel"_s);
  cancel->SetCaption(texts::Cancel, ui::Ampersand::AccessKey);

  auto* rows = new QVBoxLayout(this);
  rows->addWidget(about);
  rows->addLayout(ui::NewButtonRow({}, {ok, cancel}));
  ui::ChainTabStops({about, ok, cancel});
  ok->SetFocus();
  connect(ok, &ui::SSCommand::Click, this, [this] { OpenSampleList(); });
  connect(cancel, &ui::SSCommand::Click, this, &FHelpSamples::CancelClick);
}

void FHelpSamples::OnLoad() { setWindowIcon(Frame::Main().ScreenIcon()); }

void FHelpSamples::CancelClick() {
  // Who turns the samples down is a beginner who will make a file.
  Global().ShowCreateHelp = True;
  Unload();
}

}  // namespace velmora
