// SPDX-License-Identifier: MIT
#include "help/HelpRequest.h"

#include <QDataStream>
#include <QFileInfo>
#include <QIODevice>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MostArguments = 2;
/// The parts of a request on its way.
constexpr qsizetype Parts = 3;
constexpr auto StreamVersion = QDataStream::Qt_6_0;

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
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream.setVersion(StreamVersion);
  stream << QStringList{request.File, request.Topic, request.ActivationToken};
  return bytes;
}

std::optional<HelpRequest> Unpacked(const QByteArray& bytes) {
  QDataStream stream(bytes);
  stream.setVersion(StreamVersion);
  QStringList parts;
  stream >> parts;
  if (stream.status() != QDataStream::Ok || parts.size() != Parts) return std::nullopt;
  return HelpRequest{.File = parts[0], .Topic = parts[1], .ActivationToken = parts[2]};
}

}  // namespace velmora
