// SPDX-License-Identifier: MIT
#include "shell/frmHelpCreate.h"

#include "forms/Makers.h"
#include "frame/Frame.h"
#include "resources/strings.h"
#include "shell/FixedText.h"

#include <QVBoxLayout>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::firstrun;

frmHelpCreate::frmHelpCreate() : Form(u"frmHelpCreate"_s, strings::ProgramName) {
  lblMessage = ui::NewLabel(this, u"lblMessage"_s, {});
  auto* ok = ui::NewCommand(this, u"EditData"_s, strings::Ok);
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(ui::NewLabel(this, u"lblLimits"_s, texts::Limits));
  rows->addWidget(lblMessage);
  rows->addLayout(ui::NewButtonRow({}, {ok}));
  connect(ok, &ui::SSCommand::Click, this, [this] { Unload(); });
}

void frmHelpCreate::OnLoad() {
  setWindowIcon(Frame::Main().ScreenIcon());
  lblMessage->SetCaption(WithPlainBreaks(texts::Advice));
}

}  // namespace velmora
