// SPDX-License-Identifier: MIT
#pragma once

#include "cardfile/FieldCatalogue.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <span>

namespace velmora {

/// The per-user options that wait for OK or Apply.
struct OptionValues {
  QString Tax{};
  QString OutsideLine{};
  QString AreaCode{};
  /// 1 to 4; 0 leaves the port as it is.
  std::int32_t ModemPort = 0;
  QString MailServer{};
  QString EmailAddress{};
  bool InsideUsa = false;
  QString Browser{};
  /// The place in the list of word processors, -1 for none.
  int WordProcessor = -1;
};

/// The options as they are: the port and the country of this run, the rest as stored.
[[nodiscard]] OptionValues ReadOptions();
/// Stores them, and takes the port and the country over for this run. An empty tax, server or address leaves
/// what is stored. False when the settings cannot be written.
[[nodiscard]] bool StoreOptions(const OptionValues& values);
/// Whether one of those is empty that would not replace what is stored.
[[nodiscard]] bool LeavesStoredText(const OptionValues& values);

/// Whether the box for the tax can hold the text: blank, or a number below 100.
[[nodiscard]] bool IsTax(const QString& text);

/// The fields that can hold a telephone or fax number: texts and numbers, in the order of the catalogue.
[[nodiscard]] QStringList NumberFields(std::span<const CatalogueRow> catalogue);
/// The place of a stored field name in that list, spaces around it and case aside; -1 for none.
[[nodiscard]] int PlaceOfField(const QStringList& fields, const std::optional<QString>& stored);

/// A field of the open card file that could not be stored, and what the user is told of it.
struct FieldNotStored {
  enum class Which { Telephone, Fax } Field;
  QString Notice;
};
/// Stores the fields in the open card file; no name leaves what is stored. The first failure ends it.
[[nodiscard]] std::optional<FieldNotStored> StoreFields(const std::optional<QString>& telephone,
                                                        const std::optional<QString>& fax);

}  // namespace velmora
