// SPDX-License-Identifier: MIT
#pragma once

#include "base/system/Flag.h"
#include "engine/DBEngine.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <optional>

namespace velmora {

/// What the whole program shares while it runs: the open card file, the current card and a few settings. One
/// instance, reached through Global(). The session routines and the new-file wizard own the card file; all
/// others read it. Nothing here is stored by itself.
struct Session {
  /// The open card file; empty until a file is opened.
  std::shared_ptr<db::Database> CardDb;
  QString FilePath;
  /// The short file name as the file dialog gave it.
  QString FileTitle;
  /// True while no card file is open. CardDb may lag behind: a file that fails to open leaves it as it was.
  Flag NoFile = True;
  /// The number of the current card, 0 for none.
  std::int32_t CurCard = 0;
  /// True while a card screen holds unsaved changes.
  Flag CardChanged = False;
  std::int32_t IsNT = 0;
  std::int32_t ModemPort = 2;
  Flag IsUsa = False;
  std::int32_t TaxPercent = 17;
  /// When true, the command New explains itself.
  Flag ShowCreateHelp = False;
  /// Nobody signs in: always empty.
  QString UserName;
  /// Tables have no prefix: always empty.
  QString TablePrefix;
  /// The element number of the text field for which a value list or a picker was opened.
  std::int32_t CurFieldIndex = 0;

  /// The engine's root, made when first used and then kept.
  [[nodiscard]] db::DBEngine& DBEngine();
  /// The open card file; throws 3420 when there is none, so that a routine that works on it fails like one
  /// whose file has gone.
  [[nodiscard]] db::Database& File() const;

 private:
  std::optional<db::DBEngine> m_engine;
};

/// The one session of the program.
[[nodiscard]] Session& Global();

}  // namespace velmora
