// SPDX-License-Identifier: MIT
#include "window/copydialog.h"

#include "words/language.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QVBoxLayout>

using words::Words;

namespace window
{

CopyDialog::CopyDialog(const CopyOptions &options, QWidget *parent)
    : QDialog(parent),
      prefixRows(new QCheckBox(Words::tr("Begin rows with &##"))),
      withDescription(new QCheckBox(Words::tr("With &descriptions"))),
      markHtml(new QCheckBox(Words::tr("Descriptions are &HTML"))),
      extendedOffers(new QCheckBox(Words::tr("&Extended offers of shop feeds"))),
      applyFactor(new QCheckBox(Words::tr("&Multiply the prices of offers by"))),
      priceFactor(new QDoubleSpinBox)
{
    setWindowTitle(Words::tr("How to copy goods"));
    priceFactor->setAccessibleName(Words::tr("Factor of prices"));
    priceFactor->setDecimals(4);
    priceFactor->setRange(0.0001, 1000000);
    prefixRows->setChecked(options.prefixRows);
    withDescription->setChecked(options.withDescription);
    markHtml->setChecked(options.markHtml);
    extendedOffers->setChecked(options.extendedOffers);
    applyFactor->setChecked(options.priceFactor.has_value());
    priceFactor->setValue(options.priceFactor.value_or(1.0));
    priceFactor->setEnabled(applyFactor->isChecked());
    connect(applyFactor, &QCheckBox::toggled, priceFactor, &QWidget::setEnabled);

    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Cancel)->setText(Words::tr("Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const layout = new QVBoxLayout(this);
    for (QWidget *const field : std::initializer_list<QWidget *>{
             prefixRows, withDescription, markHtml, extendedOffers, applyFactor, priceFactor})
        layout->addWidget(field);
    layout->addWidget(buttons);
}

CopyOptions CopyDialog::options() const
{
    CopyOptions chosen;
    chosen.prefixRows = prefixRows->isChecked();
    chosen.withDescription = withDescription->isChecked();
    chosen.markHtml = markHtml->isChecked();
    chosen.extendedOffers = extendedOffers->isChecked();
    if (applyFactor->isChecked())
        chosen.priceFactor = priceFactor->value();
    return chosen;
}

} // namespace window
