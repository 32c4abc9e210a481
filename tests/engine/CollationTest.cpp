// SPDX-License-Identifier: MIT
#include "engine/text/Collation.h"

#include <gtest/gtest.h>

#include <random>
#include <thread>

namespace velmora::db {

using namespace Qt::StringLiterals;

namespace {

int Compare(const QString& left, const QString& right) {
  return CompareText(QStringView(left), QStringView(right));
}

int SignOf(int number) { return number < 0 ? -1 : number > 0 ? 1 : 0; }

QStringList Sorted(QStringList texts) {
  std::stable_sort(texts.begin(), texts.end(),
                   [](const auto& a, const auto& b) { return Compare(a, b) < 0; });
  return texts;
}

// Towns and names as cards hold them, in many scripts.
constexpr auto SomeNames =
    "Ångström Åsa Aasen Ärla Arlt Øresund Orebro Örebro Oslo Ólafur Olaf Łódź Lodz Łukasz Lukas Čapek Capek "
    "Cäcilie Çelik Celik Đorđe Dorde Djordje Éva Eva Ève Evelyn Émilie Emil Français Franca François "
    "Francois "
    "García Garcia Gárdonyi Gonçalves Goncalves Größe Groß Gross Grosz Győr Gyula Hálfdán Halfdan Ħamrun "
    "Hamrun "
    "Ilmenau İzmir Izmir Isparta ısırgan Jørgen Jorgen Jörg Köln Koln Koeln Kołobrzeg Kristín Kristin Lübeck "
    "Lubeck "
    "Mälaren Malaren Málaga Malaga Møre Möre More Müller Mueller Muller Nîmes Nimes Ñandú Nandu Nguyễn "
    "Nguyen "
    "Niš Nis Őrség Oerseg Orség Pärnu Parnu Plzeň Plzen Příbram Pribram Reykjavík Reykjavik Rhône Rhone São "
    "Sao "
    "Şanlıurfa Sanliurfa Škoda Skoda Smørrebrød Straße Strasse Straßen Tromsø Tromso Þingvellir Thingvellir "
    "Thor "
    "Ústí Usti Übersee Ubersee Üsküdar Việt Viet Wałbrzych Walbrzych Weiß Weiss Žilina Zilina Zürich Zurich "
    "Æbelø Aebelø aebele Œuvre oeuvre Ærø Иван Иванов Йошкар Ирина Ёлкин Елкин Егор Жанна Київ Їжак Αθήνα "
    "Αθηνα "
    "ΑΘΗΝΑ Θεσσαλονίκη Όμηρος ירושלים القاهرة 東京 大阪 서울 ไทย 10 9 100 a-b a_b a.b O'Neil D'Arcy"_L1;

/// Each as it is, in capitals and with its accents apart, and texts made to be awkward: accents alone, pairs
/// of letters, spaces at the end, bytes that are no UTF-8.
QList<QByteArray> Names() {
  QList<QByteArray> names;
  for (const QString& name : QString::fromUtf8(SomeNames.data(), SomeNames.size()).split(u' ')) {
    names.append(name.toUtf8());
    names.append(name.toUpper().toUtf8());
    names.append(name.normalized(QString::NormalizationForm_D).toUtf8());
  }
  for (const char* name :
       {"",      " ",  "a",  "A ",           "a\xCC\x81", "\xCC\x81",         "\xFF",     "a\xFF",
        "a\xC3", "ae", "af", "th",           "ti",        "\xD0\xB8\xCC\x86", "\xD0\xB9", "\xEF\xAC\x81n",
        "fin",   "i",  "I",  "\xE2\x84\xAA", "k"}) {
    names.append(name);
  }
  return names;
}

}  // namespace

TEST(CompareText, CaseAlone_Differs_IsEqual) {
  EXPECT_EQ(Compare(u"Paris"_s, u"pARIS"_s), 0);
  EXPECT_EQ(Compare(u"GRÖßE"_s, u"größe"_s), 0);
  EXPECT_EQ(Compare(u"ЁЖИК"_s, u"ёжик"_s), 0);
  EXPECT_EQ(Compare(u"ΑΘΗΝΑ"_s, u"αθηνα"_s), 0);
}

TEST(CompareText, Accents_Differ_AreUnequalButBesideTheirLetter) {
  EXPECT_GT(Compare(u"é"_s, u"e"_s), 0);
  EXPECT_LT(Compare(u"é"_s, u"f"_s), 0);
  EXPECT_EQ(
      Sorted({u"Zoe"_s, u"Émile"_s, u"Eve"_s, u"Emil"_s, u"Žofie"_s, u"Ägidius"_s, u"Anton"_s, u"Åsa"_s}),
      (QStringList{u"Ägidius"_s, u"Anton"_s, u"Åsa"_s, u"Emil"_s, u"Émile"_s, u"Eve"_s, u"Zoe"_s,
                   u"Žofie"_s}));
}

TEST(CompareText, Letters_DecideBeforeAccents_WhereverTheyStand) {
  EXPECT_LT(Compare(u"cote"_s, u"coté"_s), 0);
  EXPECT_LT(Compare(u"coté"_s, u"côte"_s), 0);
  EXPECT_LT(Compare(u"côté"_s, u"cotf"_s), 0);
}

TEST(CompareText, StrokedLetters_StandBesideTheirLetter) {
  EXPECT_EQ(Sorted({u"øl"_s, u"pa"_s, u"ol"_s, u"oz"_s, u"łan"_s, u"lar"_s, u"las"_s}),
            (QStringList{u"łan"_s, u"lar"_s, u"las"_s, u"ol"_s, u"øl"_s, u"oz"_s, u"pa"_s}));
}

TEST(CompareText, PairsOfLetters_Always_AreTheirLetters) {
  EXPECT_EQ(Compare(u"Straße"_s, u"STRASSE"_s), 0);
  EXPECT_EQ(Compare(u"Æon"_s, u"aeon"_s), 0);
  EXPECT_EQ(Compare(u"cœur"_s, u"COEUR"_s), 0);
  EXPECT_EQ(Compare(u"Þór"_s, u"thór"_s), 0);
  EXPECT_LT(Compare(u"Straße"_s, u"Strasst"_s), 0);
}

TEST(CompareText, BlanksAtTheEnd_DoNotCount) {
  EXPECT_EQ(Compare(u"abc"_s, u"abc   "_s), 0);
  EXPECT_EQ(Compare(u""_s, u"  "_s), 0);
  EXPECT_NE(Compare(u" abc"_s, u"abc"_s), 0);
  EXPECT_NE(Compare(u"a bc"_s, u"abc"_s), 0);
}

TEST(CompareText, Digits_StandBeforeLettersAndBehindSigns) {
  EXPECT_EQ(Sorted({u"b"_s, u"10"_s, u"a"_s, u"9"_s, u"-1"_s, u"_x"_s, u"ä"_s, u" z"_s}),
            (QStringList{u" z"_s, u"-1"_s, u"_x"_s, u"10"_s, u"9"_s, u"a"_s, u"ä"_s, u"b"_s}));
}

TEST(CompareText, AccentsAsCharactersOfTheirOwn_AreTheSame) {
  EXPECT_EQ(Compare(u"e\u0301mile"_s, u"émile"_s), 0);
  EXPECT_EQ(Compare(u"и\u0306"_s, u"й"_s), 0);
  EXPECT_NE(Compare(u"и"_s, u"й"_s), 0);
}

TEST(CompareText, NamesOfManyLanguages_AnyTwo_AreMirrorImages) {
  const auto names = Names();
  ASSERT_GT(names.size(), 400);
  for (const auto& left : names) {
    EXPECT_EQ(CompareText(QByteArrayView(left), QByteArrayView(left)), 0);
    for (const auto& right : names) {
      ASSERT_EQ(SignOf(CompareText(QByteArrayView(left), QByteArrayView(right))),
                -SignOf(CompareText(QByteArrayView(right), QByteArrayView(left))))
          << left.toStdString() << " / " << right.toStdString();
    }
  }
}

TEST(CompareText, NamesOfManyLanguages_AnyThree_AreInOneOrder) {
  const auto names = Names();
  std::mt19937 chance(7);
  std::uniform_int_distribution<qsizetype> any(0, names.size() - 1);
  const auto order = [](const QByteArray& a, const QByteArray& b) {
    return CompareText(QByteArrayView(a), QByteArrayView(b));
  };
  for (int i = 0; i < 200'000; ++i) {
    const auto& a = names[any(chance)];
    const auto& b = names[any(chance)];
    const auto& c = names[any(chance)];
    if (order(a, b) <= 0 && order(b, c) <= 0) {
      ASSERT_LE(order(a, c), 0) << a.toStdString() << " / " << b.toStdString() << " / " << c.toStdString();
    }
  }
}

TEST(CompareText, RandomCharacters_AnyThree_AreInOneOrder) {
  std::mt19937 chance(11);
  const std::u32string alphabet =
      U"aAeEsStThHdDiI "
      U"1-"
      U"\u00e9\u00c9\u00df\u1e9e\u00e6\u00fe\u0301\u0308\u0131\u0130\u0142\u0438\u0306\u0439\u4e2d\u212a"
      U"\ufb01";
  std::uniform_int_distribution<std::size_t> any(0, alphabet.size() - 1);
  const auto text = [&] {
    std::u32string made;
    for (std::size_t length = chance() % 5; length > 0; --length) made += alphabet[any(chance)];
    return QString::fromStdU32String(made).toUtf8();
  };
  const auto order = [](const QByteArray& a, const QByteArray& b) {
    return CompareText(QByteArrayView(a), QByteArrayView(b));
  };
  for (int i = 0; i < 300'000; ++i) {
    const QByteArray a = text();
    const QByteArray b = text();
    const QByteArray c = text();
    ASSERT_EQ(SignOf(order(a, b)), -SignOf(order(b, a))) << a.toStdString() << " / " << b.toStdString();
    if (order(a, b) <= 0 && order(b, c) <= 0) {
      ASSERT_LE(order(a, c), 0) << a.toStdString() << " / " << b.toStdString() << " / " << c.toStdString();
    }
  }
}

TEST(CompareText, SeveralThreads_AtOnce_AgreeWithOne) {
  const auto names = Names();
  const auto sum = [&] {
    int all = 0;
    for (const auto& a : names) all += SignOf(CompareText(QByteArrayView(a), QByteArrayView(names.front())));
    return all;
  };
  std::array<int, 4> sums{};
  {
    std::vector<std::jthread> threads;
    for (int& one : sums) threads.emplace_back([&] { one = sum(); });
  }
  for (const int one : sums) EXPECT_EQ(one, sum());
}

TEST(FoldName, Spellings_OfOneName_AreTheSame) {
  EXPECT_EQ(FoldName(u"MainData"), FoldName(u"MAINDATA  "));
  EXPECT_EQ(FoldName(u"Größe"), FoldName(u"GRÖßE"));
  EXPECT_EQ(FoldName(u"Gr\u006f\u0308ße"), FoldName(u"größe"));
  EXPECT_NE(FoldName(u"Große"), FoldName(u"Größe"));
  EXPECT_NE(FoldName(u" Name"), FoldName(u"Name"));
}

}  // namespace velmora::db
