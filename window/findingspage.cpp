// SPDX-License-Identifier: MIT
#include "window/findingspage.h"

#include "window/settings.h"
#include "window/views.h"
#include "words/language.h"

#include <QSplitter>
#include <QVBoxLayout>

using words::Words;

namespace window
{

FindingsPage::FindingsPage()
    : kindsView(tableView(kinds, Words::tr("Kinds of findings"))),
      findingsView(tableView(findings, Words::tr("Findings"))),
      rows(new QSplitter(Qt::Vertical))
{
    kindsView->setSelectionMode(QAbstractItemView::SingleSelection);
    findingsView->setSelectionMode(QAbstractItemView::SingleSelection);
    rows->addWidget(kindsView);
    rows->addWidget(findingsView);
    rows->setStretchFactor(0, 1);
    rows->setStretchFactor(1, 2);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(rows);

    connect(
        kindsView->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this](const QModelIndex &current) { findings.show(source, kinds.kindAt(current.row())); });
    const auto activate = [this](const QModelIndex &index) {
        if (index.isValid() && activated)
            activated(findings.finding(index.row()));
    };
    connect(findingsView, &QTableView::clicked, this, activate);
    connect(findingsView, &QTableView::activated, this, activate); // by Enter
}

void FindingsPage::show(const SourcePointer &newSource)
{
    source = newSource;
    kinds.show(source);
    findings.show(source, std::nullopt);
    kindsView->selectRow(0);
}

void FindingsPage::save(QSettings &settings) const
{
    window::save(settings, QStringLiteral("findings/rows"), *rows);
    window::save(settings, QStringLiteral("findings/kinds"), *kindsView);
    window::save(settings, QStringLiteral("findings/table"), *findingsView);
}

void FindingsPage::restore(const QSettings &settings)
{
    window::restore(settings, QStringLiteral("findings/rows"), *rows);
    window::restore(settings, QStringLiteral("findings/kinds"), *kindsView);
    window::restore(settings, QStringLiteral("findings/table"), *findingsView);
}

} // namespace window
