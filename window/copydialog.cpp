// SPDX-License-Identifier: MIT
#include "window/copydialog.h"

#include "words/language.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

using words::Words;

namespace window
{

CopyDialog::CopyDialog(const CopyOptions &options, QWidget *parent)
    : QDialog(parent),
      applyFactor(new QCheckBox(Words::tr("&Multiply the prices of offers by"))),
      priceFactor(new QLineEdit)
{
    setWindowTitle(Words::tr("How to copy goods"));
    priceFactor->setAccessibleName(Words::tr("Factor of prices"));
    applyFactor->setChecked(options.priceFactor.has_value());
    priceFactor->setText(QString::number(options.priceFactor.value_or(1.0), 'g', 15));

    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Cancel)->setText(Words::tr("Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    const auto check = [this, ok = buttons->button(QDialogButtonBox::Ok)] {
        priceFactor->setEnabled(applyFactor->isChecked());
        ok->setEnabled(!applyFactor->isChecked() || factor());
    };
    connect(applyFactor, &QCheckBox::toggled, this, check);
    connect(priceFactor, &QLineEdit::textChanged, this, check);
    check();

    auto *const layout = new QVBoxLayout;
    for (const CopySwitch &one : copySwitches) {
        auto *const box = new QCheckBox(Words::tr(one.text));
        box->setChecked(options.*one.option);
        layout->addWidget(box);
        switches.append(box);
    }
    for (QWidget *const field : std::initializer_list<QWidget *>{applyFactor, priceFactor, buttons})
        layout->addWidget(field);
    setLayout(layout);
}

std::optional<double> CopyDialog::factor() const
{
    // With either decimal mark, whatever the language: a feed may have the other one.
    bool isNumber = false;
    const double number = priceFactor->text().replace(u',', u'.').toDouble(&isNumber);
    return isNumber && number > 0 && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

CopyOptions CopyDialog::options() const
{
    CopyOptions chosen;
    for (int i = 0; i < switches.size(); ++i)
        chosen.*copySwitches[std::size_t(i)].option = switches.at(i)->isChecked();
    if (applyFactor->isChecked())
        chosen.priceFactor = factor();
    return chosen;
}

} // namespace window
