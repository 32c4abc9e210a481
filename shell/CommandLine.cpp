// SPDX-License-Identifier: MIT
#include "shell/CommandLine.h"

#include "base/system/Files.h"
#include "resources/strings.h"

#include <QDir>
#include <QUrl>

#include <algorithm>
#include <array>

namespace velmora {

using namespace Qt::StringLiterals;
namespace texts = strings::commandline;

namespace {

constexpr int exitOfMisuse = 2;
constexpr int exitOfNoDisplay = 1;
constexpr QStringView endOfOptions = u"--";

struct ToolkitOption {
  QStringView Name;
  bool TakesAWord;
};

/// What the toolkit takes from the command line, with one dash or two.
constexpr auto toolkitOptions =
    std::to_array<ToolkitOption>({{u"platform", true},      {u"platformpluginpath", true},
                                  {u"platformtheme", true}, {u"plugin", true},
                                  {u"display", true},       {u"session", true},
                                  {u"style", true},         {u"stylesheet", true},
                                  {u"geometry", true},      {u"qwindowgeometry", true},
                                  {u"title", true},         {u"qwindowtitle", true},
                                  {u"icon", true},          {u"qwindowicon", true},
                                  {u"name", true},          {u"reverse", false},
                                  {u"nograb", false},       {u"dograb", false},
                                  {u"sync", false},         {u"widgetcount", false},
                                  {u"qmljsdebugger", false}});

bool IsOption(QStringView word) { return word.size() > 1 && word.startsWith(u'-'); }

/// The option of the toolkit that the word is; its own word may stand in it, behind an equals sign.
const ToolkitOption* ToolkitOptionOf(QStringView word) {
  const QStringView name = word.mid(word.startsWith(u"--") ? 2 : 1);
  const QStringView bare = name.left(name.indexOf(u'=') < 0 ? name.size() : name.indexOf(u'='));
  const auto found = std::ranges::find(toolkitOptions, bare, &ToolkitOption::Name);
  return found == toolkitOptions.end() ? nullptr : &*found;
}

QString PathOf(const QString& word, const QString& directory) {
  const QUrl address(word);
  const bool isAddress = word.startsWith(u"file:"_s, Qt::CaseInsensitive);
  // A host can only be this machine; its name is no part of the path.
  const QString path =
      isAddress ? QUrl::fromPercentEncoding(address.path(QUrl::FullyEncoded).toUtf8()) : word;
  return QDir::cleanPath(QDir(directory).absoluteFilePath(path));
}

CommandLine Refused(const QString& text) {
  return {.Asks = CommandLine::Ask::Refuse, .File = {}, .Text = text + u'\n' + texts::Usage};
}

}  // namespace

CommandLine ReadCommandLine(const QStringList& words, const QString& directory) {
  CommandLine line;
  bool takesOptions = true;
  for (qsizetype i = 0; i < words.size(); ++i) {
    const QString& word = words.at(i);
    if (takesOptions && word == endOfOptions) {
      takesOptions = false;
    } else if (takesOptions && word == u"--help"_s) {
      return {.Asks = CommandLine::Ask::Print, .File = {}, .Text = texts::Help};
    } else if (takesOptions && word == u"--version"_s) {
      return {.Asks = CommandLine::Ask::Print,
              .File = {},
              .Text = QString(texts::Version).arg(QStringLiteral(VELMORA_VERSION))};
    } else if (takesOptions && IsOption(word)) {
      const ToolkitOption* option = ToolkitOptionOf(word);
      if (option == nullptr) return Refused(QString(texts::UnknownOption).arg(word));
      if (option->TakesAWord && !word.contains(u'=')) ++i;
    } else if (!line.File.isEmpty()) {
      return Refused(texts::OneFile);
    } else if (!word.isEmpty()) {
      line.File = PathOf(word, directory);
    }
  }
  return line;
}

NoDisplay WithoutDisplay(const CommandLine& line) {
  if (!line.File.isEmpty() && ExistFile(line.File) < 1)
    return {.Text = QString(texts::Missing).arg(line.File), .ExitCode = exitOfMisuse};
  return {.Text = texts::NoDisplay, .ExitCode = exitOfNoDisplay};
}

}  // namespace velmora
