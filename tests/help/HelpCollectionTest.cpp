// SPDX-License-Identifier: MIT
#include "help/HelpCollection.h"
#include "resources/HelpTopics.h"
#include "tests/help/HelpFixture.h"

#include <QFile>
#include <QFileInfo>

#include <fstream>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

class HelpCollectionTest : public HelpFixture {
 protected:
  std::unique_ptr<HelpCollection> Open(const QString& file) { return HelpCollection::Open(file, m_why); }
  static std::string PageFor(const HelpCollection& collection, const QString& topic) {
    const auto page = collection.PageOf(topic);
    return page ? page->fileName().toStdString() : std::string();
  }
  static void Overwrite(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QString m_why;
};

TEST_F(HelpCollectionTest, PageOf_NumbersOfTheProgram_AreTheirPages) {
  const auto manual = Open(Manual());
  ASSERT_NE(manual, nullptr) << m_why.toStdString();
  EXPECT_EQ(PageFor(*manual, QString::number(topics::Design)), "design.html");
  EXPECT_EQ(PageFor(*manual, QString::number(topics::Cards)), "cards.html");
  EXPECT_EQ(PageFor(*manual, QString::number(topics::Queries)), "queries.html");
  EXPECT_EQ(PageFor(*manual, QString::number(topics::Searches)), "search.html");
  EXPECT_EQ(PageFor(*manual, QString::number(topics::ImportAndExport)), "import-export.html");
  EXPECT_EQ(manual->ContentsPage().fileName(), u"index.html"_s);
}

TEST_F(HelpCollectionTest, PageOf_Keyword_IsItsPageWhateverTheCase) {
  const auto manual = Open(Manual());
  EXPECT_EQ(PageFor(*manual, u"apostrophe"_s), "limits.html");
  EXPECT_EQ(PageFor(*manual, u"Apostrophe"_s), "limits.html");
  EXPECT_EQ(PageFor(*manual, u"SQLite"_s), "import-export.html");
}

TEST_F(HelpCollectionTest, PageOf_UnknownTopic_IsNone) {
  const auto manual = Open(Manual());
  EXPECT_EQ(PageFor(*manual, u"999"_s), "");
  EXPECT_EQ(PageFor(*manual, u"' OR 1=1 --"_s), "");
}

TEST_F(HelpCollectionTest, Open_MissingFile_SaysSo) {
  EXPECT_EQ(Open(PathOf(u"nowhere.qch"_s)), nullptr);
  EXPECT_EQ(m_why, u"The help file %1 does not exist."_s.arg(PathOf(u"nowhere.qch"_s)));
}

TEST_F(HelpCollectionTest, Open_Folder_IsNoFile) {
  EXPECT_EQ(Open(m_folder.path()), nullptr);
  EXPECT_FALSE(m_why.isEmpty());
}

TEST_F(HelpCollectionTest, Open_NoHelpFile_SaysSo) {
  for (const QByteArray& bytes : {QByteArray(), QByteArray("no database"), QByteArray(10000, 'x')}) {
    Overwrite(PathOf(u"bad.qch"_s), bytes);
    EXPECT_EQ(Open(PathOf(u"bad.qch"_s)), nullptr);
    EXPECT_EQ(m_why, u"The file %1 is damaged, or it is no help file."_s.arg(PathOf(u"bad.qch"_s)));
  }
}

TEST_F(HelpCollectionTest, Open_FileCutOff_SaysSoOrStillOpens) {
  // Wherever it is cut, the viewer must neither end nor hang; with the contents lost, it says so.
  const qint64 size = QFileInfo(Manual()).size();
  for (const qint64 left : {size / 100, size / 2, size - 4096}) {
    const QString cut = CopyOfManual(u"cut-%1.qch"_s.arg(left));
    ASSERT_TRUE(QFile::resize(cut, left));
    m_why.clear();
    const auto opened = Open(cut);
    EXPECT_EQ(opened == nullptr, !m_why.isEmpty()) << left;
  }
}

TEST_F(HelpCollectionTest, Open_CollectionOfAnEarlierRunSpoilt_IsMadeAnew) {
  QString collection;
  {
    const auto first = Open(Manual());
    ASSERT_NE(first, nullptr);
    collection = first->Engine().collectionFile();
  }
  ASSERT_TRUE(collection.startsWith(PathOf(u"cache"_s)));
  Overwrite(collection, QByteArray(20000, 'x'));
  const auto second = Open(Manual());
  ASSERT_NE(second, nullptr) << m_why.toStdString();
  EXPECT_EQ(PageFor(*second, u"113"_s), "design.html");
  EXPECT_FALSE(second->IsTemporary());
}

TEST_F(HelpCollectionTest, Open_NewerFileInTheSamePlace_ShowsThatOne) {
  const QString file = CopyOfManual(u"Velmora.qch"_s);
  { ASSERT_NE(Open(file), nullptr); }
  // Another state of the same file, as a newer version of the program would bring.
  std::ofstream(file.toStdString(), std::ios::app | std::ios::binary) << std::string(4096, '\0');
  const auto newer = Open(file);
  ASSERT_NE(newer, nullptr) << m_why.toStdString();
  EXPECT_EQ(PageFor(*newer, u"118"_s), "cards.html");
}

TEST_F(HelpCollectionTest, Open_CacheThatCannotBeWritten_OpensAllTheSame) {
  Overwrite(PathOf(u"cache"_s), "");
  const auto manual = Open(Manual());
  ASSERT_NE(manual, nullptr) << m_why.toStdString();
  EXPECT_TRUE(manual->IsTemporary());
  EXPECT_EQ(PageFor(*manual, u"113"_s), "design.html");
}

TEST_F(HelpCollectionTest, Open_FileInAFolderThatIsReadOnly_LeavesItAsItIs) {
  const QString file = CopyOfManual(u"Velmora.qch"_s);
  QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadUser);
  const QDateTime before = QFileInfo(file).lastModified();
  const auto manual = Open(file);
  ASSERT_NE(manual, nullptr) << m_why.toStdString();
  EXPECT_FALSE(manual->Data(manual->ContentsPage()).isEmpty());
  EXPECT_EQ(QFileInfo(file).lastModified(), before);
}

TEST_F(HelpCollectionTest, Open_TwoAtOnce_BothShow) {
  const auto first = Open(Manual());
  const auto second = Open(Manual());
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr) << m_why.toStdString();
  EXPECT_EQ(PageFor(*first, u"113"_s), "design.html");
  EXPECT_EQ(PageFor(*second, u"147"_s), "search.html");
}

}  // namespace
}  // namespace velmora
