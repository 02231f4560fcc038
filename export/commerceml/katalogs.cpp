// SPDX-License-Identifier: MIT
#include "export/commerceml/goods.h"
#include "reader/childelements.h"
#include "reader/commxmlreader.h"
#include "reader/text.h"
#include "reader/vocabulary.h"

using namespace commerceml;
using namespace exchange;

bool CommXmlReader::exportKatalogs(bool prefixRows, bool withDescription, bool markHtml)
{
    const GoodsOptions options{prefixRows, markHtml ? HtmlMark::Html : HtmlMark::None};
    for (const QDomNode &katalog : qAsConst(katalogs)) {
        const QDomElement list = katalog.firstChildElement(goodsListElement);
        for (const QDomElement &element : ChildElements(list, goodsElement)) {
            const ChildLookup goods(element);
            const QDomElement id = goods.first(idElement);
            if (id.isNull())
                continue;
            exportGoods(textOf(id), readFields(*this, goods, catalogueGoodsFields()),
                        withDescription ? goodsDescription(goods) : QString(), options);
        }
    }
    return !katalogs.isEmpty();
}
