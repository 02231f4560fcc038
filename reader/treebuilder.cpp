// SPDX-License-Identifier: MIT
#include "reader/treebuilder.h"

#include <algorithm>

void TreeBuilder::startElement(const QString &name)
{
    const QDomElement element = document.createElement(name);
    append(element);
    open.append(element);
}

void TreeBuilder::attribute(const QString &name, const QString &value)
{
    open.last().setAttribute(name, value);
}

void TreeBuilder::endElement()
{
    open.removeLast();
}

void TreeBuilder::text(const QString &text)
{
    const auto isSpace = [](QChar character) { return character.isSpace(); };
    if (!std::all_of(text.begin(), text.end(), isSpace))
        append(document.createTextNode(text));
}

void TreeBuilder::cdata(const QString &text)
{
    append(document.createCDATASection(text));
}

void TreeBuilder::comment(const QString &text)
{
    append(document.createComment(text));
}

void TreeBuilder::processingInstruction(const QString &target, const QString &data)
{
    append(document.createProcessingInstruction(target, data));
}

void TreeBuilder::append(const QDomNode &node)
{
    if (open.isEmpty())
        document.appendChild(node);
    else
        open.last().appendChild(node);
}
