#include "ui/skin/SkinCheck.h"

#include "ui/skin/BoardCheck.h"
#include "ui/skin/CheckedTree.h"
#include "ui/skin/SecondTreeCheck.h"
#include "ui/skin/SkinFiles.h"
#include "ui/skin/SkinFonts.h"
#include "ui/skin/WindowCheck.h"

namespace quendrel {

namespace {

void Append(std::vector<std::string>& faults, const std::vector<std::string>& more) {
    faults.insert(faults.end(), more.begin(), more.end());
}

std::vector<std::string> FaultsOfSecondTree(const PictureReader& reader, const std::string& root,
                                            const CheckedTree& first) {
    CheckedTree second(reader, {root, 2});
    CheckSecondTree(first, second);
    return second.Faults();
}

/// What other machines have is not known here: any face may be one.
std::vector<std::string> FaultsOfFonts(const std::string& root) {
    return ReadSkinFonts(root, [](const std::string&) { return true; }).faults;
}

}  // namespace

std::vector<std::string> FaultsOfSkin(const PictureReader& reader, const std::string& root) {
    CheckedTree skin(reader, {root});
    CheckOutlines(skin);
    CheckGrounds(skin);
    CheckSheets(skin);
    CheckBoards(skin);
    CheckButtons(skin);
    std::vector<std::string> faults = skin.Faults();
    Append(faults, FaultsOfFonts(root));
    if (HasSecondTree(root)) Append(faults, FaultsOfSecondTree(reader, root, skin));
    return faults;
}

}  // namespace quendrel
