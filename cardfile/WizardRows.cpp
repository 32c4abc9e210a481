// SPDX-License-Identifier: MIT
#include "cardfile/WizardRows.h"

#include "cardfile/CardDesign.h"

namespace velmora {

int GrantedFields(int wanted, int page, int onPage, int inFile) {
  int granted = wanted;
  const int total = inFile + wanted - onPage;
  if (total > MaxFields - 1) granted -= total - MaxFields;
  return granted == 0 && page == 1 ? 1 : granted;
}

}  // namespace velmora
