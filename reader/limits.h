// SPDX-License-Identifier: MIT
//
// What a source may ask of the stack, the memory and the time.
#pragma once

#include <QtGlobal>

namespace limits
{

/// Levels of elements. Each takes stack while the source is parsed, walked and freed, and can read
/// all texts below it once more. Real sources stay under 50.
constexpr int nesting = 128;

/// Attributes of one element. The tree finds them by hashes that names can be chosen to share. Real
/// sources stay under 20.
constexpr int attributes = 256;

/// Opening brackets ahead of the root element. Each can be a level of a content model in the DTD,
/// which takes stack.
constexpr int brackets = 1'000;

/// Entities that a source declares with a value, and the characters of their names and values. At
/// each the parser looks for all others in it, by such hashes again. Those of XHTML are 253.
constexpr int entities = 300;
constexpr int entityText = 100'000;

/// Characters that entities may add to those of the source itself, which they may double as well.
constexpr qint64 expansion = 1'000'000;

/// Names that elements share, found by such hashes: more than any vocabulary has.
constexpr int sharedNames = 500;

} // namespace limits
