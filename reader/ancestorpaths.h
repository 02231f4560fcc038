// SPDX-License-Identifier: MIT
#pragma once

#include <QDomNode>
#include <QString>

#include <functional>
#include <optional>
#include <unordered_map>

/// The paths to nodes along their ancestors, which need not be those of the tree: the names from
/// the top down, joined by " \ ". Names at the end of a path that are empty are left out.
///
/// Each node is looked at only once, and only the paths that were asked for are kept, since all
/// that there could be are far larger than the source.
class AncestorPaths
{
public:
    /// What is to know of a node.
    struct Step {
        std::optional<QString> name; ///< if none, the paths of the nodes below begin below it
        QDomNode above;              ///< null at the top
    };
    using StepOf = std::function<Step(const QDomNode &node)>;

    /// The path to `start`; empty if all names are. Ancestors can lead back to where the path has
    /// been: it begins there.
    QString path(const QDomNode &start, const StepOf &stepOf);

    /// Forgets the nodes, ahead of a change of the document.
    void clear() { nodes.clear(); }

private:
    struct Node {
        std::optional<QString> name;
        Node *above = nullptr; // null at the top and below a node without a name
        bool isInLoop = false;
        std::optional<QString> path = {};
    };

    Node *find(const QDomNode &start, const StepOf &stepOf);
    static QString walk(Node *node);

    std::unordered_map<const void *, Node> nodes;
};
