// SPDX-License-Identifier: MIT
#include "help/HelpRequest.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MostArguments = 2;
/// The parts of a request on its way.
constexpr qsizetype Parts = 3;

QString WithEnding(const QString& file) {
  const QFileInfo info(file);
  // The other process may stand in another folder.
  return info.suffix().isEmpty() ? info.absoluteFilePath() + u".qch"_s : info.absoluteFilePath();
}

}  // namespace

std::optional<HelpRequest> ReadArguments(const QStringList& arguments) {
  const bool understood = !arguments.isEmpty() && arguments.size() <= MostArguments &&
                          !arguments.first().isEmpty() && !arguments.first().startsWith(u'-');
  if (!understood) return std::nullopt;
  return HelpRequest{
      .File = WithEnding(arguments.first()), .Topic = arguments.value(1).trimmed(), .ActivationToken = {}};
}

QByteArray Packed(const HelpRequest& request) {
  return QJsonDocument(QJsonArray{request.File, request.Topic, request.ActivationToken})
      .toJson(QJsonDocument::Compact);
}

std::optional<HelpRequest> Unpacked(const QByteArray& bytes) {
  // A list that is cut off anywhere is no list, and no length in it is believed.
  const QJsonArray parts = QJsonDocument::fromJson(bytes).array();
  const bool understood = parts.size() == Parts &&
                          std::ranges::all_of(parts, [](const QJsonValue& part) { return part.isString(); });
  if (!understood) return std::nullopt;
  return HelpRequest{
      .File = parts[0].toString(), .Topic = parts[1].toString(), .ActivationToken = parts[2].toString()};
}

}  // namespace velmora
