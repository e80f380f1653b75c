// A skin's pictures at one of their two sizes, as the check of the skin finds them.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "ui/picture/Picture.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

/// Reads every picture of the tree that can be read, and collects what is wrong.
class CheckedTree {
public:
    CheckedTree(const PictureReader& reader, SkinTree tree);

    int density() const { return tree_.density; }

    /// A picture of the tree; null for one that could not be read, on which every check rests.
    const Picture* Find(std::string_view name) const;

    /// Notes what is wrong with a file.
    void Say(std::string_view name, const std::string& fault);

    const std::vector<std::string>& Faults() const { return faults_; }

private:
    void Load(const PictureReader& reader, const std::string& name, Size size);

    SkinTree tree_;
    std::map<std::string, Picture> pictures_;
    std::vector<std::string> faults_;
};

}  // namespace quendrel
