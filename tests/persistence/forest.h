#pragma once

#include "persistence/context.h"
#include "persistence/property.h"
#include "persistence/record.h"

#include <memory>

namespace pinmora::test {

class Leaf;

/// A tree with leaves is the smallest graph that has every kind of key.
class Tree : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }
    RecordList leafList() const { return leaves; }

    RecordList leaves;
};

class Leaf : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }

    const Text &colour() const { return read("colour", colour_); }
    /// Unlike a raw write, the setter trims a blank.
    void setColour(Text colour) {
        change("colour", colour_, colour == " green" ? Text("green") : colour);
    }
    void setColourOf(Text season) { setColour(season == "autumn" ? "red" : "green"); }
    std::string label() const { return "a " + colour().string() + " leaf"; }
    Tree *tree() const { return tree_; }
    void setTree(Tree *tree) {
        willChangeValueForKey("tree");
        link(tree);
        didChangeValueForKey("tree");
    }

private:
    void link(Tree *tree) {
        if (tree_) {
            std::erase(tree_->leaves, this);
        }
        tree_ = tree;
        if (tree_) {
            tree_->leaves.push_back(this);
        }
    }
    Text colour_;
    Tree *tree_ = nullptr;
};

class Bird : public Record {
public:
    static const EntityDescription &description();
    const EntityDescription &entity() const override { return description(); }
    Tree *nest() const { return nest_; }
    void setNest(Tree *tree) { change("nest", nest_, tree); }

private:
    void link(Tree *tree) { nest_ = tree; }
    Tree *nest_ = nullptr;
};

inline const EntityDescription &Tree::description() {
    static const EntityDescription entity(
        "tree", []() -> std::unique_ptr<Record> { return std::make_unique<Tree>(); },
        {toMany<&Tree::leafList>("leaves", "tree", DeleteRule::Cascade)});
    return entity;
}

inline const EntityDescription &Leaf::description() {
    static const EntityDescription entity(
        "leaf", []() -> std::unique_ptr<Record> { return std::make_unique<Leaf>(); },
        {attribute<&Leaf::colour, &Leaf::setColour, &Leaf::colour_>("colour"),
         writeOnly<&Leaf::setColourOf>("colourOf"), derived<&Leaf::label>("label", {"colour"}),
         toOne<&Leaf::tree, &Leaf::setTree, &Leaf::tree_, &Leaf::link>("tree", "leaves")});
    return entity;
}

inline const EntityDescription &Bird::description() {
    static const EntityDescription entity(
        "bird", []() -> std::unique_ptr<Record> { return std::make_unique<Bird>(); },
        {toOne<&Bird::nest, &Bird::setNest, &Bird::nest_, &Bird::link>("nest")});
    return entity;
}

/// Trees, leaves and birds without records.
struct Forest {
    Model model{{&Tree::description(), &Leaf::description(), &Bird::description()}};
    Context context{model};
};

} // namespace pinmora::test
