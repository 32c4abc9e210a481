// SPDX-License-Identifier: MIT
#pragma once

#include "forms/Palette.h"

#include <QHash>
#include <QImage>
#include <QTextBrowser>

#include <memory>

class QPrinter;

namespace velmora {

class HelpCollection;

/// Shows the pages of a help file. Pictures are no wider than the page, and in the dark look those that have
/// a dark sister give way to it.
class HelpPage final : public QTextBrowser, public ui::Colored {
  Q_OBJECT

 public:
  explicit HelpPage(QWidget* parent = nullptr);
  /// The file whose pages are shown from now on; empty until a page is chosen.
  void SetCollection(HelpCollection* collection);

  /// Marks each word of the page that begins with one of these, and moves to the first.
  void Mark(const QStringList& words);
  /// Where the heading of the page stands when it is not scrolled.
  [[nodiscard]] QRect HeadingPlace() const;
  /// The page in dark on white, whatever the look, with pictures of at most that width.
  [[nodiscard]] std::unique_ptr<QTextDocument> OnPaper(int width) const;
  void PrintTo(QPrinter& printer) const;

  /// The size of the text, in steps from the one of the program's font.
  [[nodiscard]] int TextSteps() const { return m_steps; }
  void SetTextSteps(int steps);
  static constexpr int SmallestStep = -4;
  static constexpr int LargestStep = 24;

  void RefreshColors() override;
  [[nodiscard]] QVariant loadResource(int type, const QUrl& name) override;

 Q_SIGNALS:
  void TextSizeChanged();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

 private:
  [[nodiscard]] QImage Picture(const QUrl& address);
  [[nodiscard]] QImage Fitted(const QImage& picture) const;
  void FitPictures();
  void LoadAnew();

  HelpCollection* m_collection = nullptr;
  /// As the file holds them, in the present look.
  QHash<QUrl, QImage> m_pictures;
  int m_steps = 0;
  bool m_dark = false;
};

}  // namespace velmora
