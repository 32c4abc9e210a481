// SPDX-License-Identifier: MIT
#include "help/HelpRequest.h"

#include <QDir>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

TEST(HelpRequest, ReadArguments_FileWithoutEnding_GetsOne) {
  const auto request = ReadArguments({u"/opt/velmora-1.0/Velmora"_s});
  ASSERT_TRUE(request);
  EXPECT_EQ(request->File, u"/opt/velmora-1.0/Velmora.qch"_s);
  EXPECT_EQ(request->Topic, QString());
}

TEST(HelpRequest, ReadArguments_FileWithEnding_IsAsGiven) {
  EXPECT_EQ(ReadArguments({u"/opt/other.help"_s})->File, u"/opt/other.help"_s);
}

TEST(HelpRequest, ReadArguments_RelativePath_IsMadeWhole) {
  EXPECT_EQ(ReadArguments({u"Velmora"_s})->File, QDir::currentPath() + u"/Velmora.qch"_s);
}

TEST(HelpRequest, ReadArguments_Topic_IsTrimmed) {
  EXPECT_EQ(ReadArguments({u"/a"_s, u" 113 "_s})->Topic, u"113"_s);
}

TEST(HelpRequest, ReadArguments_SomethingElse_IsNoRequest) {
  EXPECT_FALSE(ReadArguments({}));
  EXPECT_FALSE(ReadArguments({QString()}));
  EXPECT_FALSE(ReadArguments({u"--topic"_s}));
  EXPECT_FALSE(ReadArguments({u"/a"_s, u"1"_s, u"2"_s}));
}

TEST(HelpRequest, Unpacked_WhatWasPacked_IsTheSame) {
  const HelpRequest request{
      .File = u"/home/Jürg/a\nb.qch"_s, .Topic = u"yes/no fields"_s, .ActivationToken = u"t"_s};
  EXPECT_EQ(Unpacked(Packed(request)), request);
}

TEST(HelpRequest, Unpacked_APieceOrJunk_IsNoRequest) {
  const QByteArray whole = Packed({.File = u"/a.qch"_s, .Topic = u"113"_s, .ActivationToken = {}});
  for (qsizetype size = 0; size < whole.size(); ++size) EXPECT_FALSE(Unpacked(whole.first(size))) << size;
  EXPECT_FALSE(Unpacked(QByteArray(400, '\xff')));
  EXPECT_FALSE(Unpacked(R"(["/a.qch", "113", 7])"));
  EXPECT_FALSE(Unpacked(R"(["/a.qch", "113"])"));
}

}  // namespace
}  // namespace velmora
