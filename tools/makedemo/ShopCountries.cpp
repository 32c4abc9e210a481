// SPDX-License-Identifier: MIT
#include "tools/makedemo/ShopCountries.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <array>

namespace velmora::demo {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView europe = u"Europe";
constexpr QStringView north = u"North America";
constexpr QStringView south = u"South America";

struct Row {
  QStringView Name;
  QStringView Part;
  QStringView Language;
  QStringView Currency;
  int Hours;
  QStringView Names = u"";
};

constexpr auto countries = std::to_array<Row>({
    {u"Argentina", south, u"Spanish", u"Argentine peso", -3},
    {u"Austria", europe, u"German", u"Euro", 1, u"de_DE"},
    {u"Belgium", europe, u"French", u"Euro", 1, u"fr_FR"},
    {u"Brazil", south, u"Portuguese", u"Real", -3, u"pt_PT"},
    {u"Canada", north, u"English", u"Canadian dollar", -5},
    {u"Denmark", europe, u"Danish", u"Danish crown", 1, u"da_DK"},
    {u"Finland", europe, u"Finnish", u"Euro", 2, u"fi_FI"},
    {u"France", europe, u"French", u"Euro", 1, u"fr_FR"},
    {u"Germany", europe, u"German", u"Euro", 1, u"de_DE"},
    {u"Ireland", europe, u"English", u"Euro", 0},
    {u"Italy", europe, u"Italian", u"Euro", 1, u"it_IT"},
    {u"Mexico", north, u"Spanish", u"Mexican peso", -6},
    {u"Norway", europe, u"Norwegian", u"Norwegian crown", 1, u"no_NO"},
    {u"Poland", europe, u"Polish", u"Zloty", 1},
    {u"Portugal", europe, u"Portuguese", u"Euro", 0, u"pt_PT"},
    {u"Spain", europe, u"Spanish", u"Euro", 1},
    {u"Sweden", europe, u"Swedish", u"Swedish crown", 1, u"sv_SE"},
    {u"Switzerland", europe, u"German", u"Swiss franc", 1, u"de_DE"},
    {u"UK", europe, u"English", u"Pound", 0},
    {u"USA", north, u"English", u"US dollar", -5},
    {u"Venezuela", south, u"Spanish", u"Bolívar", -4},
});

struct KindRow {
  QStringView Kind;
  /// Parts of names that tell it, separated by blanks.
  QStringView Words;
};

constexpr auto kinds = std::to_array<KindRow>({
    {u"Delicatessen", u"delika delica spezial spécial gourm gastron délic cheese käse caseif vin vins wine"},
    {u"Restaurant",
     u"restaur cocina cozinha bistro taquer comidas zajazd chinese essen kala antojit lanchon app"},
    {u"Market", u"market supermarkt mercado markets grocer abastos stop köp marktstand hiper alimentari"},
    {u"Trading house", u"import export handel trading connection comerc comérc holdings importadora versand"},
});

}  // namespace

ShopCountry CountryOfShop(const CsvRow& shop) {
  const QString name = shop.value(u"Country"_s);
  const auto row = std::ranges::find(countries, QStringView(name), &Row::Name);
  if (row == countries.end()) return {};
  // Wide countries have more than one time.
  static const QHash<QString, int> hoursOfRegion{{u"AK"_s, -9}, {u"WA"_s, -8}, {u"OR"_s, -8},
                                                 {u"CA"_s, -8}, {u"ID"_s, -7}, {u"MT"_s, -7},
                                                 {u"WY"_s, -7}, {u"NM"_s, -7}, {u"BC"_s, -8}};
  const QString region = shop.value(u"Region"_s);
  const bool isFrench = region == u"Québec"_s;
  return {.Part = row->Part.toString(),
          .Language = isFrench ? u"French"_s : row->Language.toString(),
          .Currency = row->Currency.toString(),
          .HoursFromLondon = hoursOfRegion.value(region, row->Hours),
          .Names = row->Names.toString()};
}

QString KindOfShop(const QString& name) {
  for (const KindRow& kind : kinds) {
    for (const QString& word : kind.Words.toString().split(u' ')) {
      if (name.contains(word, Qt::CaseInsensitive)) return kind.Kind.toString();
    }
  }
  return u"Shop"_s;
}

}  // namespace velmora::demo
