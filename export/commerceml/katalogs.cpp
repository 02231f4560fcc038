// SPDX-License-Identifier: MIT
#include "export/commerceml/walks.h"
#include "reader/commxmlreader.h"
#include "reader/tree.h"
#include "reader/vocabulary.h"

using namespace exporter;

void commerceml::exportKatalogs(const QList<QDomNode> &katalogs, const Export &to,
                                const GoodsOptions &options)
{
    const FieldTable fields = goodsFields(to, exchange::withoutTabs);
    exportGoods(katalogs, {goodsListElement, goodsElement, ItemKind::Good}, to, options,
                [&](const ChildLookup &goods) { return readFields(goods, fields); });
}

bool CommXmlReader::exportKatalogs(bool prefixRows, bool withDescription, bool markHtml)
{
    commerceml::exportKatalogs(katalogs, exportTo(writer, groupIndex),
                               catalogueOptions(prefixRows, withDescription, markHtml));
    return !katalogs.isEmpty();
}
