// SPDX-License-Identifier: MIT
//
// The one walk through the whole tree of a source: where marks are, and what no exporter came to.
#pragma once

#include "survey/collector.h"

#include <QDomDocument>
#include <QList>

namespace survey
{

/// What is found at an element, and the place of that among all elements, from 0.
struct PlacedMark {
    int element;
    Mark mark;
};

/// An item that an exporter came to, and the places of its element and of the next one that is not
/// within it.
struct PlacedItem {
    const void *element;
    int begin;
    int end;
};

struct Elements {
    QVector<PlacedMark> marks; ///< in document order; of one element, by kind
    int groups = 0;            ///< or categories

    // Only if they are wanted.
    QVector<PlacedItem> items;
    QVector<QDomElement> groupElements; ///< in document order
};

/// Looks at all elements of a document, whose exports `collector` has heard of.
Elements walkElements(const QDomDocument &document, const QList<QDomNode> &groupSections,
                      SourceDialect dialect, const Collector &collector, bool wantsElements);

} // namespace survey
