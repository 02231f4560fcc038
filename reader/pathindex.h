// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDomElement>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>
#include <unordered_map>

/// Stands between the names of a path.
inline const QString pathSeparator = QStringLiteral(" \\ ");

/// Tells the path that a key leads to, as a search through one section after the other would, but
/// looks at the sections and at each node only once, and again when the sections are others than
/// the last time. Only the paths that were asked for are kept: all that there could be are far
/// larger than the source, and so can be the keys of elements within elements.
class PathIndex
{
public:
    /// What an element's key leads to; a null node if it has no key.
    struct Keyed {
        QDomNode node;
        std::optional<QString> key = {}; ///< if none, the key is the full text of the element
    };

    /// One node on a path.
    struct Step {
        std::optional<QString> name; ///< if none, the paths of the nodes below begin below it
        QDomNode above = {};         ///< the next one; null at the top
        std::optional<QString> keyAbove = {}; ///< or the key of that, in the same section
    };

    /// What a path is made of.
    struct Kind {
        /// What the key of this element of a section leads to.
        Keyed (*keyed)(const QDomElement &element);
        Step (*step)(const QDomNode &node);
        bool isDeep; ///< elements at any depth of a section have keys, or else its children alone
    };

    /// Why a path is not what a source should give.
    enum class Flaw {
        None,
        UnknownKey,    ///< nothing has the key
        MissingParent, ///< nothing has a key above: the path begins there
        Loop,          ///< the parents lead back to where the path has been: it begins there
    };

    /// A node with all above it, for those who tell paths by their names. It stays until the index
    /// is cleared, or the sections are others.
    struct Node {
        std::optional<QString> name;
        const Node *above = nullptr;  // null at the top and below a node without a name
        const Node *bottom = nullptr; // where the path to the node ends; null if it is empty
        bool isInLoop = false;
        Flaw flaw = Flaw::None;
    };

    struct Path {
        /// The names from the top down. Those at the end that are empty are left out.
        QString text; // never null
        Flaw flaw;
        const Node *bottom = nullptr; ///< where it ends; null if it is empty
    };

    explicit PathIndex(const Kind &kind) : kind(kind) {}

    /// The path that the first of these sections gives, in which something has this key and a path
    /// that is not empty. Empty if none does.
    Path path(const QList<QDomNode> &sections, const QString &key);

    /// Where that path ends, which costs less than all of it; null if it is empty.
    const Node *bottom(const QList<QDomNode> &sections, const QString &key);

    /// The names of the path that ends at a node, from the top down.
    static QStringList names(const Node &bottom);

    /// Forgets the sections and their document.
    void clear();

private:
    struct Place {
        int section; // the innermost one around it
        QDomNode node;
        QByteArray digest; // of the key
    };

    using Places = QVector<Place>;
    using Way = QVector<Node *>;

    void build(const QList<QDomNode> &sections);
    void collect(const QDomNode &parent, int section, QString &text);
    Places::const_iterator find(const QByteArray &digest, int section) const;
    QMap<int, QDomNode> firstNodes(const QString &key) const;
    QDomNode nodeIn(int section, const QString &key) const;
    const Node *visitFirst(const QString &key);
    const Node *visit(const QDomNode &first, int section);
    static void closeLoop(const Way &way);
    static bool hasName(const Node *node) { return !node->name.value_or(QString()).isEmpty(); }

    Kind kind;
    QList<QDomNode> indexed;
    QVector<int> enclosing; // the section around each section
    Places places;          // by digest; those of one digest in document order
    std::unordered_map<const void *, Node> nodes;
    QMap<QString, Path> paths;
};
