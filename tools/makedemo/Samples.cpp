// SPDX-License-Identifier: MIT
#include "tools/makedemo/Samples.h"

#include <QDir>

namespace velmora::demo {

using namespace Qt::StringLiterals;

void MakeSamples(const QString& folder) {
  const QDir samples(folder);
  samples.mkpath(u"."_s);
  MakeShops(samples.filePath(u"Shops.ddb"_s));
  MakeCompanies(samples.filePath(u"Companies.ddb"_s));
  MakeCities(samples.filePath(u"Cities.ddb"_s));
}

}  // namespace velmora::demo
