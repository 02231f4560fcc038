// SPDX-License-Identifier: MIT
#pragma once

#include "window/copyoptions.h"

#include <QDialog>
#include <QVector>

class QCheckBox;
class QLineEdit;

namespace window
{

/// Asks how goods get onto the clipboard.
class CopyDialog : public QDialog
{
public:
    CopyDialog(const CopyOptions &options, QWidget *parent);

    CopyOptions options() const;

private:
    /// Nothing where what is written is none.
    std::optional<double> factor() const;

    QVector<QCheckBox *> switches; ///< in the order of copySwitches
    QCheckBox *applyFactor;
    QLineEdit *priceFactor;
};

} // namespace window
