// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "foundation/base/Bytes.h"
#include "foundation/base/LibraryNotice.h"
#include "foundation/base/Result.h"

/// Property lists whose root is an array of strings: the one shape that this system keeps in them.
namespace quorvane::plist {

/// What reads XML here.
LibraryNotice xmlLibrary();

enum class Form { Xml, Binary, Text };

/// The form that the bytes are written in, by how they begin; what is neither binary nor XML is the old text form.
Form formOf(ByteView bytes);

/// The strings of a property list in any form, as UTF-8, in their order. Elements that are no strings are left out.
/// Fails when the bytes are no property list, its root is no array, or it is over the limits. XML may be in any
/// encoding that its parser knows (UTF-16 with a byte-order mark among them), text in UTF-8 or UTF-16; code units of a
/// string that stand for no character become U+FFFD.
Result<std::vector<std::string>> readStringArray(ByteView bytes);
/// The same of one form, whatever the bytes look like.
Result<std::vector<std::string>> readXml(ByteView bytes);
Result<std::vector<std::string>> readBinary(ByteView bytes);
Result<std::vector<std::string>> readText(ByteView bytes);

/// Whether the XML form can hold a string: well-formed UTF-8 without control characters other than tab and line feed,
/// and without U+FFFE and U+FFFF. (A carriage return would have to be written as a reference, which not every reader
/// gives back.)
bool isWritable(std::string_view text);

/// The XML form. Strings that it cannot hold are left out: whoever lists names must be able to live with a name that is
/// not in the list.
Bytes writeStringArray(const std::vector<std::string>& strings);

}  // namespace quorvane::plist
