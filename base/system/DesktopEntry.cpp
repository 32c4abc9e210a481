// SPDX-License-Identifier: MIT
#include "base/system/DesktopEntry.h"

#include "base/system/ExecLine.h"

#include <QStandardPaths>

#include <algorithm>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

bool Shares(const QStringList& some, const QStringList& others) {
  return std::ranges::any_of(some, [&others](const QString& one) { return others.contains(one); });
}

}  // namespace

std::optional<DesktopEntry> DesktopEntry::Read(const QString& path) {
  std::optional<KeyFile> file = KeyFile::Read(path);
  if (!file || !file->HasGroup(Group)) return std::nullopt;
  return DesktopEntry(path, *std::move(file));
}

bool DesktopEntry::IsInstalled() const {
  const QString test = m_file.Text(Group, u"TryExec"_s);
  return test.isEmpty() || !QStandardPaths::findExecutable(test).isEmpty();
}

bool DesktopEntry::HasWindow() const {
  return m_file.Text(Group, u"Type"_s) == u"Application"_s && !m_file.IsTrue(Group, u"Terminal"_s);
}

bool DesktopEntry::IsOffered() const {
  return HasWindow() && !IsHidden() && !m_file.IsTrue(Group, u"NoDisplay"_s) && StartWith({}).has_value() &&
         IsInstalled();
}

bool DesktopEntry::IsFor(const QStringList& desktops) const {
  const QStringList only = m_file.List(Group, u"OnlyShowIn"_s);
  return (only.isEmpty() || Shares(only, desktops)) && !Shares(m_file.List(Group, u"NotShowIn"_s), desktops);
}

bool DesktopEntry::HasCategory(const QString& category) const {
  return m_file.List(Group, u"Categories"_s).contains(category);
}

bool DesktopEntry::OpensType(const QString& mimeType) const {
  return m_file.List(Group, u"MimeType"_s).contains(mimeType);
}

std::optional<ProgramStart> DesktopEntry::StartWith(const QStringList& files) const {
  std::optional<QStringList> words = FillExecLine(
      m_file.Text(Group, u"Exec"_s),
      {.Files = files, .Name = Name(), .Icon = m_file.LocalText(Group, u"Icon"_s), .Entry = m_path});
  if (!words) return std::nullopt;
  const QString program = words->takeFirst();
  return ProgramStart{
      .Program = program, .Arguments = *std::move(words), .Directory = m_file.Text(Group, u"Path"_s)};
}

}  // namespace velmora
