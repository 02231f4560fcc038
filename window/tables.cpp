// SPDX-License-Identifier: MIT
#include "window/tables.h"

#include "window/texts.h"
#include "words/findings.h"
#include "words/language.h"

#include <algorithm>
#include <iterator>
#include <utility>

using survey::Finding;
using words::Words;

namespace window
{

GoodsModel::GoodsModel()
    : TableModel([this] {
          QVector<Column> columns;
          for (const GoodFieldInfo &info : goodFields) {
              const auto text = [this, field = info.field](int row) {
                  return good(row).field(field);
              };
              columns.append({info.heading, text, info.width, info.isNumber});
          }
          return columns;
      }())
{
}

void GoodsModel::show(SourcePointer newSource, QVector<int> newPlaces)
{
    const int count = int(newPlaces.size());
    startOver(count, [&] {
        source = std::move(newSource);
        places = std::move(newPlaces);
    });
}

OrdersModel::OrdersModel()
    : TableModel({
          {QT_TRANSLATE_NOOP("Words", "Not exported"),
           [this](int row) { return order(row).isLost ? sentence(order(row).loss) : QString(); },
           16},
          {QT_TRANSLATE_NOOP("Words", "Number"), [this](int row) { return order(row).number; }},
          {QT_TRANSLATE_NOOP("Words", "Date"), [this](int row) { return order(row).date; }},
          {QT_TRANSLATE_NOOP("Words", "Partner"), [this](int row) { return order(row).partner; },
           30},
          {QT_TRANSLATE_NOOP("Words", "Role"), [this](int row) { return order(row).role; }, 14},
          {QT_TRANSLATE_NOOP("Words", "Comment"), [this](int row) { return order(row).comment; },
           30},
          {QT_TRANSLATE_NOOP("Words", "Status"), [this](int row) { return order(row).status; }},
          {QT_TRANSLATE_NOOP("Words", "Sum"), [this](int row) { return order(row).sum; }, 12, true},
      })
{
}

void OrdersModel::show(SourcePointer newSource)
{
    const int count = int(newSource->orders.size());
    startOver(count, [&] { source = std::move(newSource); });
}

LinesModel::LinesModel()
    : TableModel({
          {QT_TRANSLATE_NOOP("Words", "Not exported"),
           [this](int row) {
               return lines.at(row).isExported ? QString() : sentence(exporter::Loss::NoCode);
           },
           16},
          {QT_TRANSLATE_NOOP("Words", "Code"), [this](int row) { return lines.at(row).code; }, 20},
          {QT_TRANSLATE_NOOP("Words", "Name"), [this](int row) { return lines.at(row).name; }, 40},
          {QT_TRANSLATE_NOOP("Words", "Quantity"),
           [this](int row) { return lines.at(row).quantity; }, 12, true},
          {QT_TRANSLATE_NOOP("Words", "Unit"), [this](int row) { return lines.at(row).unit; }, 8},
          {QT_TRANSLATE_NOOP("Words", "Price"), [this](int row) { return lines.at(row).price; }, 12,
           true},
          {QT_TRANSLATE_NOOP("Words", "Sum"), [this](int row) { return lines.at(row).sum; }, 12,
           true},
      })
{
}

void LinesModel::show(const QVector<OrderLine> &newLines)
{
    startOver(int(newLines.size()), [&] { lines = newLines; });
}

/// What the keys of a partner mean.
static QString keyInWords(const QString &key)
{
    static const std::pair<const char *, const char *> texts[] = {
        {"code", QT_TRANSLATE_NOOP("Words", "Code")},
        {"name", QT_TRANSLATE_NOOP("Words", "Name")},
        {"fullname", QT_TRANSLATE_NOOP("Words", "Full name")},
        {"inn", QT_TRANSLATE_NOOP("Words", "INN")},
        {"kpp", QT_TRANSLATE_NOOP("Words", "KPP")},
        {"okpo", QT_TRANSLATE_NOOP("Words", "OKPO")},
        {"address_legal", QT_TRANSLATE_NOOP("Words", "Legal address")},
        {"address_actual", QT_TRANSLATE_NOOP("Words", "Address")},
        {"phone", QT_TRANSLATE_NOOP("Words", "Phone")},
        {"phone2", QT_TRANSLATE_NOOP("Words", "Second phone")},
        {"phone3", QT_TRANSLATE_NOOP("Words", "Third phone")},
        {"email", QT_TRANSLATE_NOOP("Words", "E-mail")},
    };
    const auto *const text = std::find_if(std::begin(texts), std::end(texts), [&](const auto &one) {
        return key == QLatin1String(one.first);
    });
    return text != std::end(texts) ? Words::tr(text->second) : key;
}

DetailsModel::DetailsModel()
    : TableModel({
          {QT_TRANSLATE_NOOP("Words", "Detail"),
           [this](int row) { return keyInWords(details.at(row).key); }, 18},
          {QT_TRANSLATE_NOOP("Words", "Value"), [this](int row) { return details.at(row).value; }},
      })
{
}

void DetailsModel::show(const QVector<KeyValue> &newDetails)
{
    startOver(int(newDetails.size()), [&] { details = newDetails; });
}

KindsModel::KindsModel()
    : TableModel({
          {QT_TRANSLATE_NOOP("Words", "Level"),
           [this](int row) {
               return row == 0 ? QString() : words::levelWord(kinds.at(row - 1).level);
           }},
          {QT_TRANSLATE_NOOP("Words", "Count"),
           [this](int row) { return QString::number(row == 0 ? count : kinds.at(row - 1).count); },
           12, true},
          {QT_TRANSLATE_NOOP("Words", "Kind"),
           [this](int row) {
               return row == 0 ? Words::tr("All findings")
                               : words::kindName(kinds.at(row - 1).kind);
           },
           80},
      })
{
}

void KindsModel::show(const SourcePointer &source)
{
    const survey::Survey &survey = source->survey;
    startOver(1 + int(survey.found.size()), [&] {
        kinds.clear();
        count = 0;
        QMap<survey::Kind, survey::Level> levels;
        for (const Finding &finding : survey.findings)
            levels.insert(finding.kind, finding.level);
        for (auto found = survey.found.cbegin(); found != survey.found.cend(); ++found) {
            kinds.append({found.key(), levels.value(found.key()), found.value()});
            count += found.value();
        }
    });
}

std::optional<survey::Kind> KindsModel::kindAt(int row) const
{
    return row <= 0 ? std::nullopt : std::optional(kinds.at(row - 1).kind);
}

FindingsModel::FindingsModel()
    : TableModel({
          {QT_TRANSLATE_NOOP("Words", "Level"),
           [this](int row) { return words::levelWord(finding(row).level); }},
          {QT_TRANSLATE_NOOP("Words", "Place"),
           [this](int row) { return placeInWords(finding(row).position); }, 22},
          {QT_TRANSLATE_NOOP("Words", "Good or order"),
           [this](int row) { return finding(row).code; }, 30},
          {QT_TRANSLATE_NOOP("Words", "Finding"),
           [this](int row) { return words::sentence(finding(row)); }, 80},
      })
{
}

void FindingsModel::show(SourcePointer newSource, std::optional<survey::Kind> kind)
{
    QVector<int> newPlaces;
    const QVector<Finding> &findings = newSource->survey.findings;
    for (int place = 0; place < findings.size(); ++place) {
        if (!kind || findings.at(place).kind == *kind)
            newPlaces.append(place);
    }
    const int count = int(newPlaces.size());
    startOver(count, [&] {
        source = std::move(newSource);
        places = std::move(newPlaces);
    });
}

QByteArray FindingsModel::toCsv() const
{
    // With the mark at the beginning, spreadsheets know the encoding.
    QString csv(QChar::ByteOrderMark);
    const auto addRow = [&](const auto &cellOf) {
        for (int column = 0; column < columnCount(); ++column) {
            QString cell = cellOf(column);
            // A spreadsheet takes what begins so for a formula.
            if (!cell.isEmpty() && QLatin1String("=+-@\t\r").contains(cell.at(0)))
                cell.prepend(u'\'');
            cell.replace(u'"', QLatin1String("\"\""));
            csv += (column > 0 ? QLatin1String(";\"") : QLatin1String("\"")) + cell + u'"';
        }
        csv += QLatin1String("\r\n");
    };
    addRow([this](int column) {
        return headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    });
    for (int row = 0; row < rowCount(); ++row)
        addRow([&](int column) { return text(row, column); });
    return csv.toUtf8();
}

} // namespace window
