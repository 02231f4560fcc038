// SPDX-License-Identifier: MIT
#pragma once

#include <QDomNode>
#include <QString>

/// The texts of an element and of all elements within it, joined; null for a null node. It is that
/// of QDomElement::text(), which copies a text once more for each level that it lies below.
QString textOf(const QDomNode &element);
