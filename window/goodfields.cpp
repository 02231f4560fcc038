// SPDX-License-Identifier: MIT
#include "window/goodfields.h"

#include "exchange/format.h"

using namespace exchange;

namespace window
{

const std::array<GoodFieldInfo, goodFieldCount> goodFields = {{
    {GoodField::Code, QT_TRANSLATE_NOOP("Words", "Code"), 20},
    {GoodField::Article,
     QT_TRANSLATE_NOOP("Words", "Article"),
     14,
     false,
     {target::article.rowCode}},
    {GoodField::Name, QT_TRANSLATE_NOOP("Words", "Name"), 40, false, {target::name.rowCode}},
    {GoodField::Group, QT_TRANSLATE_NOOP("Words", "Group"), 30, false, {target::group.rowCode}},
    {GoodField::Unit, QT_TRANSLATE_NOOP("Words", "Unit"), 8, false, {target::unit.rowCode}},
    {GoodField::Barcode,
     QT_TRANSLATE_NOOP("Words", "Barcode"),
     20,
     false,
     {target::barcode.rowCode}},
    {GoodField::Prices,
     QT_TRANSLATE_NOOP("Words", "Prices"),
     16,
     true,
     {"DC1"_l1, "DC2"_l1, "DC3"_l1, "DC4"_l1, "DC5"_l1}},
    {GoodField::Maker, QT_TRANSLATE_NOOP("Words", "Maker"), 16, false, {"DP12"_l1}},
    {GoodField::Country, QT_TRANSLATE_NOOP("Words", "Country"), 12, false, {"DP3"_l1}},
    {GoodField::Weight, QT_TRANSLATE_NOOP("Words", "Weight"), 12, true, {"DP16"_l1}},
    {GoodField::Picture, QT_TRANSLATE_NOOP("Words", "Picture"), 30},
    {GoodField::Note, QT_TRANSLATE_NOOP("Words", "Note"), 12},
}};

} // namespace window
