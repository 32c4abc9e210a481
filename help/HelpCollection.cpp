// SPDX-License-Identifier: MIT
#include "help/HelpCollection.h"

#include "resources/strings.h"

#include <QFileInfo>
#include <QHelpLink>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr auto contentsTopic = "contents"_L1;

std::optional<QUrl> FirstOf(const QList<QHelpLink>& links) {
  return links.isEmpty() ? std::nullopt : std::optional(links.first().url);
}

}  // namespace

std::unique_ptr<HelpCollection> HelpCollection::Open(const QString& helpFile, QString& why) {
  const QFileInfo info(helpFile);
  if (!info.isFile()) {
    why = QString(strings::help::Missing).arg(helpFile);
    return nullptr;
  }
  if (!info.isReadable()) {
    why = QString(strings::help::Unreadable).arg(helpFile);
    return nullptr;
  }
  if (QHelpEngineCore::namespaceName(helpFile).isEmpty()) {
    why = QString(strings::help::Damaged).arg(helpFile);
    return nullptr;
  }
  std::unique_ptr<HelpCollection> opened(new HelpCollection(helpFile));
  if (!opened->SetUp()) {
    // What an earlier run left may be spoilt.
    opened->m_folder.Empty();
    if (!opened->SetUp()) {
      why = QString(strings::help::NoPlace).arg(opened->m_engine->error());
      return nullptr;
    }
  }
  if (!opened->ContentsPage().isValid()) {
    why = QString(strings::help::Damaged).arg(helpFile);
    return nullptr;
  }
  return opened;
}

HelpCollection::HelpCollection(const QString& helpFile)
    : m_file(helpFile), m_namespace(QHelpEngineCore::namespaceName(helpFile)), m_folder(helpFile) {}

bool HelpCollection::SetUp() {
  m_engine.reset();
  m_engine = std::make_unique<QHelpEngine>(m_folder.Collection());
  m_engine->setReadOnly(false);
  m_engine->setUsesFilterEngine(true);
  if (!m_engine->setupData()) return false;
  if (HasThisFile()) return true;
  if (!m_engine->registerDocumentation(m_file)) return false;
  return m_engine->setupData() && HasThisFile();
}

bool HelpCollection::HasThisFile() const {
  return QFileInfo(m_engine->documentationFileName(m_namespace)) == QFileInfo(m_file);
}

QUrl HelpCollection::ContentsPage() const {
  if (const auto page = FirstOf(m_engine->documentsForIdentifier(contentsTopic))) return *page;
  const QList<QUrl> pages = m_engine->files(m_namespace, QString(), u"html"_s);
  return pages.isEmpty() ? QUrl() : pages.first();
}

std::optional<QUrl> HelpCollection::PageOf(const QString& topic) const {
  if (auto page = FirstOf(m_engine->documentsForIdentifier(topic))) return page;
  if (auto page = FirstOf(m_engine->documentsForKeyword(topic))) return page;
  return FirstOf(m_engine->documentsForKeyword(topic.toLower()));
}

QByteArray HelpCollection::Data(const QUrl& address) const { return m_engine->fileData(address); }

}  // namespace velmora
