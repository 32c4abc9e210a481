// SPDX-License-Identifier: MIT
#pragma once

#include "help/HelpRequest.h"

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

#include <chrono>
#include <memory>

namespace velmora {

/// Lets one viewer serve a user on a display: the first start takes the place, every later one hands its
/// request over to it. What a viewer that died has left in the folder does not stand in the way, and other
/// users cannot reach in.
class OneViewer final : public QObject {
  Q_OBJECT

 public:
  /// The place is in the user's folder for running programs, and bears the display in its name.
  explicit OneViewer(QObject* parent = nullptr);
  ~OneViewer() override;

  enum class Outcome {
    /// This process is the viewer.
    First,
    /// Another one is, and has taken the request.
    HandedOver,
    /// Another one is and does not answer, or there is no place to meet.
    Alone,
  };
  [[nodiscard]] Outcome Join(const HelpRequest& request, std::chrono::milliseconds patience);

 Q_SIGNALS:
  /// Another start handed its request over.
  void Asked(const HelpRequest& request);

 private:
  [[nodiscard]] bool TakePlace();
  [[nodiscard]] bool HandOver(const HelpRequest& request) const;
  void Receive();

  QString m_place;
  std::unique_ptr<QLockFile> m_lock;
  QLocalServer m_server;
};

}  // namespace velmora
