// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velmora::demo {

// The sample files that come with the program. All throw db::Error.

/// A customer file: shops with their trade, terms and visits, a hundred fields on ten pages.
void MakeShops(const QString& path);
/// A plain list of companies on two pages.
void MakeCompanies(const QString& path);
/// Many cards of few fields.
void MakeCities(const QString& path);

/// Makes all samples in a folder, in place of those that are there.
void MakeSamples(const QString& folder);

}  // namespace velmora::demo
