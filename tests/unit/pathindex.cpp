// SPDX-License-Identifier: MIT
#include "probe.h"

#include <QRandomGenerator>

/// The paths of a reader; on random trees they must be those of the plain searches.
class PathIndexTest : public QObject
{
    Q_OBJECT

    static constexpr auto sectionNames = {"Классификатор", "categories", "Группы", "Группа", "Ид"};

    QRandomGenerator random = QRandomGenerator(20261122);

    int pick(int count) { return random.bounded(count); }

    /// Few different ids, the empty one among them, so that they repeat.
    QString id() { return QString("0123").mid(pick(4), pick(2)); }

    QString tree(int depth)
    {
        QString xml;
        for (int i = pick(5); i > 0; --i) {
            const QString name = *(sectionNames.begin() + pick(5));
            const bool isInner = depth > 0 && (name != "Ид" || pick(3) == 0);
            const QString content = isInner ? tree(depth - 1) : id();
            xml += QString("<%1>%2</%1>").arg(name, content);
            if (pick(2) != 0)
                xml += QString("<Ид>%1</Ид><Наименование>N%1</Наименование>").arg(id());
            QString parent = pick(3) != 0 ? QString(" parentId='%1'").arg(id()) : "";
            if (pick(4) != 0)
                parent += QString(" id='%1'").arg(id());
            xml += QString("<category%1>%2</category>").arg(parent, id());
        }
        return xml;
    }

    static void prepend(QString &path, const QString &name)
    {
        path = path.isEmpty() ? name : name + " \\ " + path;
    }

    static QString plainGroupPath(const QList<QDomNode> &sections, const QString &id)
    {
        QString path;
        for (int i = 0; i < sections.size() && path.isEmpty(); ++i) {
            QDomNode node = Probe::findElementByText(sections.at(i), "Ид", id).parentNode();
            QDomElement name = node.firstChildElement("Наименование");
            if (!name.isNull())
                prepend(path, name.text());
            while ((node = node.parentNode()).nodeName() == "Группы" &&
                   (node = node.parentNode()).nodeName() == "Группа" &&
                   !(name = node.firstChildElement("Наименование")).isNull())
                prepend(path, name.text());
        }
        return path;
    }

    static QString plainCategoryPath(const QList<QDomNode> &sections, const QString &id)
    {
        QString path;
        for (int i = 0; i < sections.size() && path.isEmpty(); ++i) {
            QStringList walked;
            for (QString next = id; !walked.contains(next);) {
                const QDomElement category =
                    Probe::findElementByAttribute(sections.at(i), "category", "id", next)
                        .toElement();
                if (category.isNull())
                    break;
                prepend(path, category.text());
                walked.append(next);
                next = category.attribute("parentId", "0");
                if (next == "0")
                    break;
            }
        }
        return path;
    }

private slots:
    void samePathsAsThePlainSearches()
    {
        int filled = 0;
        for (int run = 0; run < 1500; ++run) {
            Probe probe("<r>" + tree(4) + "</r>");
            for (int change = 0; change < 3; ++change) {
                for (const QString &id : QStringList{"", "0", "1", "2", "3"}) {
                    const QString path = probe.groupPath(id);
                    QCOMPARE(path, plainGroupPath(probe.groups, id));
                    QCOMPARE(probe.ymlCategoryPath(id), plainCategoryPath(probe.groups, id));
                    filled += path.isEmpty() || probe.pathBuffer.isEmpty() ? 0 : 1;
                }
                if (change == 0)
                    std::reverse(probe.groups.begin(), probe.groups.end());
                else if (!probe.groups.isEmpty())
                    probe.groups.removeAt(pick(static_cast<int>(probe.groups.size())));
            }
        }
        QVERIFY(filled > 1000);
    }

    void readStructureForgetsPaths()
    {
        Probe probe("<r><Классификатор><Ид>1</Ид><Наименование>old</Наименование>"
                    "<category id='1'>old</category></Классификатор></r>");
        for (const QString name : {"old", "new"}) {
            QCOMPARE(probe.groupPath("1"), name);
            QCOMPARE(probe.ymlCategoryPath("1"), name);
            for (const QDomNode &child :
                 {probe.groups.first().childNodes().at(1), probe.groups.first().childNodes().at(2)})
                child.firstChild().setNodeValue("new");
            QVERIFY(probe.readStructure());
        }
        QVERIFY(!probe.groupPath("unknown").isNull() && !probe.pathBuffer.isNull());
    }
};

QTEST_APPLESS_MAIN(PathIndexTest)
#include "pathindex.moc"
