// SPDX-License-Identifier: MIT
#pragma once

#include "window/sourcereader.h"

#include <QDialog>

class QCheckBox;
class QDoubleSpinBox;

namespace window
{

/// Asks how goods get onto the clipboard.
class CopyDialog : public QDialog
{
public:
    CopyDialog(const CopyOptions &options, QWidget *parent);

    CopyOptions options() const;

private:
    QCheckBox *prefixRows;
    QCheckBox *withDescription;
    QCheckBox *markHtml;
    QCheckBox *extendedOffers;
    QCheckBox *applyFactor;
    QDoubleSpinBox *priceFactor;
};

} // namespace window
