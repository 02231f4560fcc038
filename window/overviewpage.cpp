// SPDX-License-Identifier: MIT
#include "window/overviewpage.h"

#include "words/language.h"

#include <QPainter>

#include <algorithm>

using words::Words;

namespace window
{

class OverviewPage::Canvas : public QWidget
{
public:
    void show(const QVector<Chart> &newCharts)
    {
        charts = newCharts;
        QString spoken;
        for (const Chart &chart : charts) {
            spoken += chart.title + QLatin1String(": ");
            for (const Bar &bar : chart.bars)
                spoken += bar.label + u' ' + QString::number(bar.count) + QLatin1String(", ");
        }
        setAccessibleDescription(spoken);
        setMinimumSize(leastSize());
        update();
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        int y = lineHeight() / 2;
        if (charts.isEmpty()) {
            painter.drawText(rect(), Qt::AlignCenter, Words::tr("There is nothing to show"));
            return;
        }
        for (const Chart &chart : charts) {
            draw(painter, chart, y);
            y += heightOf(chart);
        }
    }

    void changeEvent(QEvent *event) override
    {
        QWidget::changeEvent(event);
        setMinimumSize(leastSize()); // the font may be another one
    }

private:
    int lineHeight() const { return fontMetrics().height() * 3 / 2; }
    int heightOf(const Chart &chart) const { return (int(chart.bars.size()) + 2) * lineHeight(); }
    int letters(int count) const { return count * fontMetrics().averageCharWidth(); }

    QSize leastSize() const
    {
        int height = lineHeight();
        for (const Chart &chart : charts)
            height += heightOf(chart);
        constexpr int leastLetters = 60;
        return {letters(leastLetters), height};
    }

    void draw(QPainter &painter, const Chart &chart, int y) const
    {
        const int margin = letters(2);
        const int labelWidth = std::min(width() / 3, letters(30));
        const int numberWidth = letters(10);
        const int left = margin + labelWidth + margin;
        const int widest = std::max(width() - left - numberWidth - margin, 1);
        int highest = 1;
        for (const Bar &bar : chart.bars)
            highest = std::max(highest, bar.count);

        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(margin, y, width() - margin, lineHeight()), Qt::AlignVCenter,
                         chart.title);
        painter.setFont(font());
        for (const Bar &bar : chart.bars) {
            y += lineHeight();
            const QRect label(margin, y, labelWidth, lineHeight());
            painter.drawText(label, Qt::AlignVCenter | Qt::AlignRight,
                             fontMetrics().elidedText(bar.label, Qt::ElideRight, labelWidth));
            const int length = std::max(int(qint64(widest) * bar.count / highest), 1);
            const QRect body(left, y + lineHeight() / 6, length, lineHeight() * 2 / 3);
            painter.fillRect(body, palette().color(QPalette::Highlight));
            painter.drawText(QRect(body.right() + margin / 2, y, numberWidth, lineHeight()),
                             Qt::AlignVCenter, QString::number(bar.count));
        }
    }

    QVector<Chart> charts;
};

OverviewPage::OverviewPage() : canvas(new Canvas)
{
    setWidget(canvas); // which it owns now
    setWidgetResizable(true);
    setAccessibleName(Words::tr("Overview"));
    canvas->setAccessibleName(Words::tr("Overview"));
}

void OverviewPage::show(const Source &source)
{
    canvas->show(overviewOf(source));
}

} // namespace window
