// SPDX-License-Identifier: MIT
#include "export/export.h"

#include "reader/commxmlreader.h"
#include "reader/tree.h"

#include <utility>

using namespace exchange;

namespace exporter
{

GoodsOptions catalogueOptions(bool prefixRows, bool withDescription, bool markHtml)
{
    return {prefixRows, withDescription, markHtml ? HtmlMark::Html : HtmlMark::None};
}

GoodsOptions offerOptions(bool prefixRows, bool withDescription, bool markHtml, bool applyFactor,
                          double priceFactor)
{
    return {prefixRows, withDescription, markHtml ? HtmlMark::Html : HtmlMark::PlainText,
            applyFactor ? std::optional(priceFactor) : std::nullopt};
}

void Export::item(const Item &item, const Block &block, QLatin1String codeKey) const
{
    writer.writeLine(block.begin);
    if (!codeKey.isEmpty())
        writer.writeLine(codeKey, item.code);
    for (const FieldValue &value : item.values) {
        if (!value.target.key.isEmpty())
            writer.writeLine(value.target.key, value.lineText);
    }
    if (!item.text.isEmpty()) {
        writer.writeLine(freeText.begin);
        writer.writeLine({}, item.text);
        writer.writeLine(freeText.end);
    }
    writer.writeLine(block.end);
    if (observer != nullptr)
        observer->exported(item);
}

void Export::goods(const Item &item, const GoodsOptions &options, bool hasRow) const
{
    this->item(item, goodsBlock);
    if (hasRow) {
        appendGoodsRow(goodsRows, goodsRow(item.code, options.prefixRows, item.values), item.text,
                       options.htmlMark);
    }
}

std::optional<QString> Export::path(const QDomElement &id) const
{
    static constexpr std::pair<PathIndex::Flaw, Doubt> doubts[] = {
        {PathIndex::Flaw::UnknownKey, Doubt::UnknownGroup},
        {PathIndex::Flaw::MissingParent, Doubt::MissingParent},
        {PathIndex::Flaw::Loop, Doubt::GroupLoop},
    };
    const PathIndex::Path found = findPath(textOf(id));
    for (const auto &[flaw, doubt] : doubts) {
        if (found.flaw == flaw)
            doubted(id, doubt);
    }
    if (observer != nullptr)
        observer->inGroup(found);
    return unlessEmpty(found.text);
}

} // namespace exporter

exporter::Export CommXmlReader::exportTo(Writer &lines, PathIndex &index)
{
    return {lines, goodsRows, [this, &index](const QString &id) { return buildPath(index, id); },
            observer};
}
