// SPDX-License-Identifier: MIT
#include "shell/SampleFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

class SampleFilesTest : public testing::Test {
 protected:
  SampleFilesTest() {
    EXPECT_TRUE(QDir().mkpath(From()));
    Write(From() + u"/Shops.ddb"_s, "shops");
    Write(From() + u"/Cities.ddb"_s, "cities");
    Write(From() + u"/README"_s, "no sample");
  }

  [[nodiscard]] QString From() const { return m_folder.filePath(u"program"_s); }
  [[nodiscard]] QString To() const { return m_folder.filePath(u"data/velmora/Samples"_s); }
  static void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
  }
  static QByteArray Bytes(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
  }
  [[nodiscard]] QStringList AllIn(const QString& folder) const {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  }

  QTemporaryDir m_folder;
};

/// No file of this process may become longer than that while it lives: writing fails in its midst.
class ShortFiles final {
 public:
  explicit ShortFiles(rlim_t longest) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit now{longest, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &now);
  }
  ~ShortFiles() {
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_handler);
  }
  ShortFiles(const ShortFiles&) = delete;
  ShortFiles& operator=(const ShortFiles&) = delete;

 private:
  rlimit m_before{};
  void (*m_handler)(int);
};

}  // namespace

TEST_F(SampleFilesTest, CopyMissingSamples_FirstTime_CopiesEachSampleAndNothingElse) {
  EXPECT_TRUE(CopyMissingSamples(From(), To()));
  EXPECT_EQ(AllIn(To()), QStringList({u"Cities.ddb"_s, u"Shops.ddb"_s}));
  EXPECT_EQ(Bytes(To() + u"/Shops.ddb"_s), "shops");
}

TEST_F(SampleFilesTest, CopyMissingSamples_SomeAreThere_LeavesThoseAsTheirUserHasChangedThem) {
  ASSERT_TRUE(QDir().mkpath(To()));
  Write(To() + u"/Shops.ddb"_s, "changed");
  EXPECT_TRUE(CopyMissingSamples(From(), To()));
  EXPECT_EQ(Bytes(To() + u"/Shops.ddb"_s), "changed");
  EXPECT_EQ(Bytes(To() + u"/Cities.ddb"_s), "cities");
}

TEST_F(SampleFilesTest, CopyMissingSamples_SourceMayOnlyBeRead_CopyCanBeWritten) {
  ASSERT_TRUE(QFile::setPermissions(From() + u"/Shops.ddb"_s, QFile::ReadOwner));
  EXPECT_TRUE(CopyMissingSamples(From(), To()));
  EXPECT_TRUE(QFile::permissions(To() + u"/Shops.ddb"_s).testFlag(QFile::WriteOwner));
}

TEST_F(SampleFilesTest, CopyMissingSamples_DiskFullInTheMidst_FailsAndLeavesNoHalfCopy) {
  Write(From() + u"/Shops.ddb"_s, QByteArray(100'000, 's'));
  {
    const ShortFiles full(50'000);
    EXPECT_FALSE(CopyMissingSamples(From(), To()));
  }
  EXPECT_EQ(AllIn(To()), QStringList{u"Cities.ddb"_s});
}

TEST_F(SampleFilesTest, CopyMissingSamples_FolderCannotBeMade_Fails) {
  Write(m_folder.filePath(u"data"_s), "a file where the folder would be");
  EXPECT_FALSE(CopyMissingSamples(From(), To()));
}

TEST_F(SampleFilesTest, CopyMissingSamples_NoSamplesAnywhere_Fails) {
  EXPECT_FALSE(CopyMissingSamples(m_folder.filePath(u"nowhere"_s), To()));
}

TEST_F(SampleFilesTest, CopyMissingSamples_ProgramHasNone_OwnOnesServe) {
  ASSERT_TRUE(CopyMissingSamples(From(), To()));
  EXPECT_TRUE(CopyMissingSamples(m_folder.filePath(u"nowhere"_s), To()));
}

TEST_F(SampleFilesTest, CopyMissingSamples_AnEarlierOneWasCutShort_ClearsWhatItLeft) {
  ASSERT_TRUE(QDir().mkpath(To()));
  Write(To() + u"/.Shops.ddb.4711.unfinished"_s, "sho");
  EXPECT_TRUE(CopyMissingSamples(From(), To()));
  EXPECT_EQ(AllIn(To()), QStringList({u"Cities.ddb"_s, u"Shops.ddb"_s}));
}

TEST_F(SampleFilesTest, SamplesOfTheUser_DataFolderGiven_LieThere) {
  qputenv("XDG_DATA_HOME", "/home/ann/data");
  EXPECT_EQ(SamplesOfTheUser(), u"/home/ann/data/velmora/Samples"_s);
  qunsetenv("XDG_DATA_HOME");
}
