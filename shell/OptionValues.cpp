// SPDX-License-Identifier: MIT
#include "shell/OptionValues.h"

#include "base/system/Failures.h"
#include "base/text/Numbers.h"
#include "cardfile/Options.h"
#include "frame/Session.h"
#include "resources/strings.h"
#include "shell/SettingTable.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr std::int32_t highestTax = 99;
constexpr std::int32_t lastPort = 4;

/// An option that an empty box leaves as it is stored.
struct KeptWhenEmpty {
  TextSetting Setting;
  QString OptionValues::*Value;
};

constexpr std::array keptWhenEmpty{KeptWhenEmpty{settings::TaxText, &OptionValues::Tax},
                                   KeptWhenEmpty{settings::MailServer, &OptionValues::MailServer},
                                   KeptWhenEmpty{settings::EmailAddress, &OptionValues::EmailAddress}};

/// The tax alone counts as empty when it is blank.
bool IsEmpty(const KeptWhenEmpty& option, const OptionValues& values) {
  const QString& text = values.*option.Value;
  return option.Value == &OptionValues::Tax ? text.trimmed().isEmpty() : text.isEmpty();
}

QString NoticeOf(const QString& field, const EnvironmentFailure& failure) {
  const auto* error = dynamic_cast<const db::Error*>(&failure);
  if (error != nullptr && error->Code() == db::ErrorCode::TextTooLong)
    return QString(strings::options::FieldNameTooLong).arg(field);
  return QString(strings::options::FieldNotStored).arg(field) + QString::fromUtf8(failure.what());
}

}  // namespace

OptionValues ReadOptions() {
  const QString processor = Read(settings::TextEditor);
  return {.Tax = Read(settings::TaxText),
          .OutsideLine = Read(settings::OutsideLine),
          .AreaCode = Read(settings::AreaCode),
          .ModemPort = Global().ModemPort,
          .MailServer = Read(settings::MailServer),
          .EmailAddress = Read(settings::EmailAddress),
          .InsideUsa = Global().IsUsa == True,
          .Browser = Read(settings::Browser),
          .WordProcessor = processor.isEmpty() ? -1 : AtoLong(processor)};
}

bool StoreOptions(const OptionValues& values) {
  Session& session = Global();
  bool stored = true;
  for (const KeptWhenEmpty& option : keptWhenEmpty) {
    if (!IsEmpty(option, values)) stored &= Write(option.Setting, values.*option.Value);
  }
  stored &= Write(settings::OutsideLine, values.OutsideLine);
  stored &= Write(settings::AreaCode, values.AreaCode);
  if (values.ModemPort >= 1 && values.ModemPort <= lastPort) {
    stored &= Write(settings::ModemPort, values.ModemPort);
    session.ModemPort = values.ModemPort;
  }
  stored &= Write(settings::InsideUsa, values.InsideUsa);
  session.IsUsa = ToFlag(values.InsideUsa);
  stored &= Write(settings::Browser, values.Browser);
  stored &= Write(settings::TextEditor, QString::number(values.WordProcessor));
  return stored;
}

bool LeavesStoredText(const OptionValues& values) {
  return std::ranges::any_of(keptWhenEmpty, [&values](const KeptWhenEmpty& option) {
    return IsEmpty(option, values) && !Read(option.Setting).isEmpty();
  });
}

bool IsTax(const QString& text) { return text.trimmed().isEmpty() || LeadingWhole(text) <= highestTax; }

QStringList NumberFields(std::span<const CatalogueRow> catalogue) {
  QStringList names;
  for (const CatalogueRow& row : catalogue) {
    const std::optional<FieldKind> kind = FieldKindOf(row);
    if (row.Name && (kind == FieldKind::Text || kind == FieldKind::Number)) names += *row.Name;
  }
  return names;
}

int PlaceOfField(const QStringList& fields, const std::optional<QString>& stored) {
  if (!stored) return -1;
  const QString name = stored->trimmed();
  const auto found = std::ranges::find_if(
      fields, [&name](const QString& field) { return field.compare(name, Qt::CaseInsensitive) == 0; });
  return found == fields.end() ? -1 : static_cast<int>(found - fields.begin());
}

std::optional<FieldNotStored> StoreFields(const std::optional<QString>& telephone,
                                          const std::optional<QString>& fax) {
  using enum FieldNotStored::Which;
  if (!telephone && !fax) return std::nullopt;
  FieldNotStored fault{.Field = Telephone, .Notice = {}};
  const bool stored = Trap(
      [&] {
        const Options options(Global().File());
        if (telephone) options.SetTelephoneField(*telephone);
        fault.Field = Fax;
        if (fax) options.SetFaxField(*fax);
      },
      [&](const EnvironmentFailure& failure) {
        fault.Notice = NoticeOf((fault.Field == Telephone ? telephone : fax).value_or(QString()), failure);
      });
  return stored ? std::nullopt : std::optional(fault);
}

}  // namespace velmora
