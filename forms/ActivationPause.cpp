// SPDX-License-Identifier: MIT
#include "forms/ActivationPause.h"

#include "forms/FormManager.h"

namespace velmora::ui {

ActivationPause::ActivationPause() { FormManager::Instance().PauseActivation(); }
ActivationPause::~ActivationPause() { FormManager::Instance().ResumeActivation(); }

}  // namespace velmora::ui
