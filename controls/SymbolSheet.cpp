// SPDX-License-Identifier: MIT
#include "controls/SymbolSheet.h"

#include "forms/Palette.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QSaveFile>
#include <QStandardPaths>

#include <array>

namespace velmora {

using namespace Qt::StringLiterals;

namespace {

constexpr double letterHeight = 0.55;
constexpr double digitSide = 0.55;
constexpr double digitHeight = 0.85;

/// A file of the icon theme; empty when it is not installed.
QString ThemeFile(const QString& name) {
  const QString theme = ui::IsDarkLook() ? u"breeze-dark"_s : u"breeze"_s;
  return QStandardPaths::locate(QStandardPaths::GenericDataLocation, u"icons/%1/%2"_s.arg(theme, name));
}

/// False when the theme or the reader of its drawings is not installed.
bool DrawFromTheme(QPainter& painter, const QRect& square, QStringView symbol) {
  const QString file = ThemeFile(symbol.toString() + u".svg"_s);
  if (file.isEmpty()) return false;
  QImageReader reader(file);
  reader.setScaledSize(square.size());
  const QImage drawn = reader.read();
  painter.drawImage(square.topLeft(), drawn);
  return !drawn.isNull();
}

QFont LetterFont(double pixels) {
  QFont letters = QGuiApplication::font();
  letters.setBold(true);
  letters.setPixelSize(std::max(1, qRound(pixels)));
  return letters;
}

void DrawLetters(QPainter& painter, const QRect& square, QStringView letters) {
  painter.setFont(LetterFont(square.height() * letterHeight));
  painter.setPen(ui::RoleColor(ui::Role::Ink));
  painter.drawText(square, Qt::AlignCenter, letters.toString());
}

/// A case with a display and three rows of keys, on the theme's grid of 22 units.
void DrawCalculator(QPainter& painter, const QRect& square) {
  painter.save();
  painter.translate(square.topLeft());
  painter.scale(square.width() / 22.0, square.height() / 22.0);
  const QColor ink = ui::RoleColor(ui::Role::Ink);
  const std::array<QRectF, 5> parts{
      {{4, 3, 14, 1}, {4, 18, 14, 1}, {4, 4, 1, 14}, {17, 4, 1, 14}, {6, 5, 10, 3}}};
  for (const QRectF& part : parts) painter.fillRect(part, ink);
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column)
      painter.fillRect(QRectF(6 + 4 * column, 10 + 3 * row, 2, 1.6), ink);
  }
  painter.restore();
}

/// On a ground of its own, so that it can be read over the symbol.
void DrawDigit(QPainter& painter, const QRect& square, QStringView digit) {
  const double side = square.height() * digitSide;
  const QRectF corner(square.left() + square.width() - side, square.top() + square.height() - side, side,
                      side);
  const QPalette palette = QGuiApplication::palette();
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette.color(QPalette::Active, QPalette::Highlight));
  painter.drawEllipse(corner);
  painter.setPen(palette.color(QPalette::Active, QPalette::HighlightedText));
  painter.setFont(LetterFont(side * digitHeight));
  painter.drawText(corner, Qt::AlignCenter, digit.toString());
}

void DrawSymbol(QPainter& painter, const QRect& square, const ToolSymbol& symbol) {
  if (symbol.File.isEmpty()) {
    DrawCalculator(painter, square);
  } else if (!DrawFromTheme(painter, square, symbol.File)) {
    DrawLetters(painter, square, symbol.Letters);
  }
  if (!symbol.Digit.isEmpty()) DrawDigit(painter, square, symbol.Digit);
}

/// A strip that cannot be kept is drawn again another time.
void Keep(const QString& path, const QImage& strip) {
  if (!QDir().mkpath(QFileInfo(path).path())) return;
  QSaveFile file(path);
  if (file.open(QIODevice::WriteOnly) && strip.save(&file, "PNG")) file.commit();
}

}  // namespace

void SymbolSheet::Draw(QPainter& painter, const QRectF& square, int index) {
  const int side = qRound(square.width() * painter.device()->devicePixelRatio());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  // A part of its own, lest a place between two pixels let the neighbours shine in.
  painter.drawImage(square, StripOf(side).copy(index * side, 0, side, side));
}

const QImage& SymbolSheet::StripOf(int side) {
  QImage& strip = m_strips[{side, ui::IsDarkLook()}];
  if (!strip.isNull()) return strip;
  const QString path = CacheFile(side);
  if (QFileInfo::exists(path)) strip.load(path, "PNG");
  if (strip.size() != QSize(side * static_cast<int>(m_symbols.size()), side)) {
    strip = DrawStrip(side);
    Keep(path, strip);
  }
  return strip;
}

QImage SymbolSheet::DrawStrip(int side) const {
  QImage strip(side * static_cast<int>(m_symbols.size()), side, QImage::Format_ARGB32_Premultiplied);
  strip.fill(Qt::transparent);
  QPainter painter(&strip);
  painter.setRenderHint(QPainter::Antialiasing);
  int left = 0;
  for (const ToolSymbol& symbol : m_symbols) {
    DrawSymbol(painter, {left, 0, side, side}, symbol);
    left += side;
  }
  return strip;
}

QString SymbolSheet::CacheFile(int side) const {
  const QFileInfo theme(ThemeFile(u"index.theme"_s));
  QStringList key{QStringLiteral(VELMORA_VERSION), QString::number(side),
                  QString::number(static_cast<int>(ui::IsDarkLook())), theme.filePath(),
                  QString::number(theme.exists() ? theme.lastModified().toMSecsSinceEpoch() : 0)};
  for (const ToolSymbol& symbol : m_symbols)
    key << symbol.File.toString() << symbol.Letters.toString() << symbol.Digit.toString();
  const QByteArray name =
      QCryptographicHash::hash(key.join(u'\n').toUtf8(), QCryptographicHash::Sha1).toHex();
  return u"%1/toolbar-%2.png"_s.arg(QStandardPaths::writableLocation(QStandardPaths::CacheLocation),
                                    QString::fromLatin1(name));
}

}  // namespace velmora
