// SPDX-License-Identifier: MIT
// Makes a background picture of the program from its drawing.
#include <QCoreApplication>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <cstdio>

namespace {

constexpr int quality = 92;

int Fail(const QString& text) {
  std::fputs(qUtf8Printable(text + QLatin1Char('\n')), stderr);
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) return Fail(QStringLiteral("usage: makewallpaper DRAWING.svg PICTURE.jpg"));
  QImageReader reader(arguments.at(1));
  const QImage drawing = reader.read();
  if (drawing.isNull()) return Fail(arguments.at(1) + QStringLiteral(": ") + reader.errorString());
  // A JPEG has no transparent parts.
  QImage picture(drawing.size(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter(&picture).drawImage(0, 0, drawing);
  QImageWriter writer(arguments.at(2), "jpg");
  writer.setQuality(quality);
  if (!writer.write(picture)) return Fail(arguments.at(2) + QStringLiteral(": ") + writer.errorString());
  return 0;
}
