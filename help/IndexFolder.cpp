// SPDX-License-Identifier: MIT
#include "help/IndexFolder.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr auto folderPrefix = "help-"_L1;
constexpr auto lockName = "/lock"_L1;

/// Another name for each state of the file, and for each library that writes the index.
QString NameFor(const QString& helpFile) {
  const QFileInfo file(helpFile);
  const QString state = u"%1|%2|%3|%4"_s.arg(file.canonicalFilePath())
                            .arg(file.size())
                            .arg(file.lastModified().toMSecsSinceEpoch())
                            .arg(QString::fromLatin1(qVersion()));
  const QByteArray sum = QCryptographicHash::hash(state.toUtf8(), QCryptographicHash::Sha1);
  return folderPrefix + QString::fromLatin1(sum.toHex());
}

/// A lock whose holder has gone is free, however young it is; one whose holder lives is not, however old.
std::unique_ptr<QLockFile> LockIn(const QString& folder) {
  auto lock = std::make_unique<QLockFile>(folder + lockName);
  lock->setStaleLockTime(0);
  return lock;
}

}  // namespace

IndexFolder::IndexFolder(const QString& helpFile) {
  Take(helpFile);
  if (m_path.isEmpty()) GoTemporary();
}

IndexFolder::~IndexFolder() = default;

void IndexFolder::Take(const QString& helpFile) {
  const QString parent =
      QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + u"/velmora"_s;
  const QString path = parent + u'/' + NameFor(helpFile);
  if (!QDir().mkpath(path)) return;
  m_lock = LockIn(path);
  if (!m_lock->tryLock(0)) {
    m_lock.reset();
    return;
  }
  m_path = path;
  RemoveOthers(parent);
}

void IndexFolder::RemoveOthers(const QString& parent) const {
  const QStringList folders =
      QDir(parent).entryList({QString(folderPrefix) + u'*'}, QDir::Dirs | QDir::NoSymLinks);
  for (const QString& name : folders) {
    const QString other = parent + u'/' + name;
    if (other == m_path) continue;
    const auto lock = LockIn(other);
    if (!lock->tryLock(0)) continue;
    lock->unlock();
    QDir(other).removeRecursively();
  }
}

QString IndexFolder::Collection() const { return m_path.isEmpty() ? QString() : m_path + u"/manual.qhc"_s; }

void IndexFolder::Empty() const {
  const QFileInfoList entries =
      QDir(m_path).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  for (const QFileInfo& entry : entries) {
    if (entry.filePath() == m_path + lockName) continue;
    if (entry.isDir() && !entry.isSymLink()) {
      QDir(entry.filePath()).removeRecursively();
    } else {
      QFile::remove(entry.filePath());
    }
  }
}

void IndexFolder::GoTemporary() {
  m_temporary = std::make_unique<QTemporaryDir>();
  m_path = m_temporary->isValid() ? m_temporary->path() : QString();
}

}  // namespace velmora
