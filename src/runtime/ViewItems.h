// The items of list and tree views, which their forms hold as binary data.
#pragma once
#include "vcl/FormFile.h"

namespace glotta {

struct ViewItemText {
    std::string place; // "[0]", its second column "[0].SubItems[1]", a node below it "[0][2]"
    std::string text;
};

// The texts in an 'Items.Data' value, empty when the bytes are laid out in another way.
std::vector<ViewItemText> ListViewItemTexts(std::string_view bytes, unsigned codePage);
std::vector<ViewItemText> TreeViewItemTexts(std::string_view bytes, unsigned codePage);

// The bytes of a binary value, whichever format its form has.
std::string BinaryBytes(const FormValue& value, bool binaryForm);

} // namespace glotta
