// SPDX-License-Identifier: MIT
#include "export/commerceml/walks.h"
#include "reader/vocabulary.h"

using namespace commerceml;
using namespace exchange;
using namespace exporter;

namespace
{

QString withoutHyphens(QString text)
{
    return text.remove(QLatin1Char('-'));
}

const FieldTable orderFields = {
    {QStringLiteral("Дата"), fullText, lineOnly("date:"_l1), unchanged, withoutHyphens},
    {QStringLiteral("Комментарий"), filledText, lineOnly("note:"_l1), unchanged, simplified},
};

const QString statusRequisite = QStringLiteral("Статус заказа");

} // namespace

void commerceml::exportOrderHead(const QDomElement &doc, const Export &to, int documentType)
{
    const ChildLookup head(doc);
    Item order = {ItemKind::Order, doc, textOf(head.first(numberElement)), {}, {}};
    order.values = FieldValues{{lineOnly("type:"_l1), {}, QString::number(documentType)}} +
                   readFields(head, orderFields);

    const QDomElement list = head.first(QStringLiteral("ЗначенияРеквизитов"));
    for (const QDomElement &requisite : childElements(list, QStringLiteral("ЗначениеРеквизита"))) {
        const QString name = textOf(requisite.firstChildElement(nameElement));
        const QString value = textOf(requisite.firstChildElement(valueElement));
        if (name.isEmpty() || value.isEmpty())
            continue;
        if (name == statusRequisite)
            order.values.append({lineOnly("status:"_l1), {}, value});
        order.text += name + ": "_l1 + value + QLatin1Char('\n');
    }
    to.item(order, orderBlock, "number:"_l1);
}
