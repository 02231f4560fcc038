// SPDX-License-Identifier: MIT
#include "export/fields.h"
#include "reader/childelements.h"
#include "reader/commxmlreader.h"
#include "reader/text.h"
#include "reader/vocabulary.h"

using namespace commerceml;
using namespace exchange;

namespace
{

QString withoutHyphens(QString text)
{
    return text.remove(QLatin1Char('-'));
}

const FieldTable orderFields = {
    {QStringLiteral("Дата"), fullText, {{}, "date:"_l1}, unchanged, withoutHyphens},
    {QStringLiteral("Комментарий"), filledText, {{}, "note:"_l1}, unchanged, simplified},
};

const QString statusRequisite = QStringLiteral("Статус заказа");

} // namespace

void CommXmlReader::exportOrderHead(const QDomNode &doc, int documentType)
{
    writeLine(orderBlock.begin);
    writeLine("number:"_l1, textOf(doc.firstChildElement(numberElement)));
    writeLine("type:"_l1, QString::number(documentType));
    writeFields(readFields(*this, ChildLookup(doc), orderFields));

    QString requisitesText;
    const QDomElement list = doc.firstChildElement(QStringLiteral("ЗначенияРеквизитов"));
    for (const QDomElement &requisite : ChildElements(list, QStringLiteral("ЗначениеРеквизита"))) {
        const QString name = textOf(requisite.firstChildElement(nameElement));
        const QString value = textOf(requisite.firstChildElement(valueElement));
        if (name.isEmpty() || value.isEmpty())
            continue;
        if (name == statusRequisite)
            writeLine("status:"_l1, value);
        requisitesText += name + ": "_l1 + value + QLatin1Char('\n');
    }
    writeText(requisitesText);
    writeLine(orderBlock.end);
}
