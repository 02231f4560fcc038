// SPDX-License-Identifier: MIT
//
// Texts of sources, which may be hostile, made ready for the toolkit: it lays them out in no time
// and finds nothing in them to fetch.
#pragma once

#include <QString>

#include <optional>

namespace window
{

/// A plain text as it is shown. Where the toolkit would take long, lines are broken; what is too
/// long is cut, which "…" on a line of its own tells. Characters that turn the order of others are
/// left out.
QString harmlessText(const QString &text);

/// The same for HTML, with the elements alone that tell how a text is meant, and without any
/// attribute. Elements come whole, one within the other. Nothing where it would take long to lay
/// out.
std::optional<QString> harmlessHtml(const QString &html);

} // namespace window
