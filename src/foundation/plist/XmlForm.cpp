// SPDX-License-Identifier: GPL-3.0-or-later
#include <expat.h>

#include <memory>

#include "foundation/plist/Collected.h"
#include "foundation/plist/PropertyList.h"

namespace quorvane::plist {

namespace {

// Where elements stand: <plist><array><string>.
constexpr int rootDepth = 1;
constexpr int arrayDepth = 2;
constexpr int itemDepth = 3;

/// What the parser meets. Nothing is kept but the strings; the depth is a number, so nesting costs nothing here.
class Reading {
 public:
  Reading() : _parser(XML_ParserCreate(nullptr), XML_ParserFree) {
    XML_SetUserData(_parser.get(), this);
    XML_SetElementHandler(_parser.get(), onBegin, onEnd);
    XML_SetCharacterDataHandler(_parser.get(), onText);
    // A list needs none of its own, and they can be made to grow without end or to lead to other files.
    XML_SetEntityDeclHandler(_parser.get(), onEntity);
    XML_SetSkippedEntityHandler(_parser.get(), onSkipped);
  }

  Result<std::vector<std::string>> read(ByteView bytes) {
    if (!_parser) return Error(ErrorKind::System, "no memory to read a property list");
    const auto status =
        XML_Parse(_parser.get(), reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()), XML_TRUE);
    if (_error) return *std::move(_error);
    if (status != XML_STATUS_OK)
      return noPropertyList(std::string(XML_ErrorString(XML_GetErrorCode(_parser.get()))) + " in line " +
                            std::to_string(XML_GetCurrentLineNumber(_parser.get())));
    if (!_hasArray) return noArray();
    return std::move(_strings).take();
  }

 private:
  static Reading& of(void* data) { return *static_cast<Reading*>(data); }
  static void XMLCALL onBegin(void* data, const XML_Char* name, const XML_Char** /*attributes*/) {
    of(data).begin(name);
  }
  static void XMLCALL onEnd(void* data, const XML_Char* /*name*/) { of(data).end(); }
  static void XMLCALL onText(void* data, const XML_Char* text, int length) {
    Reading& reading = of(data);
    if (reading._isInString) reading._text.append(text, static_cast<std::size_t>(length));
  }
  static void XMLCALL onEntity(void* data, const XML_Char*, int, const XML_Char*, int, const XML_Char*, const XML_Char*,
                               const XML_Char*, const XML_Char*) {
    of(data).fail(noPropertyList("it declares entities"));
  }
  static void XMLCALL onSkipped(void* data, const XML_Char*, int) {
    of(data).fail(noPropertyList("it refers to an entity that is not declared"));
  }

  void fail(Error error) {
    if (!_error) _error = std::move(error);
    XML_StopParser(_parser.get(), XML_FALSE);
  }

  void begin(std::string_view name) {
    if (_error) return;
    ++_depth;
    if (_depth > limits::propertyListDepth) return fail(nestedTooDeep());
    if (_depth == rootDepth && name != "plist") return fail(noPropertyList("its outermost element is no plist"));
    if (_depth == arrayDepth) {
      if (_hasArray) return fail(noPropertyList("it has two values"));
      if (name != "array") return fail(noArray());
      _hasArray = true;
    }
    if (_isInString) return fail(noPropertyList("an element stands in a string"));
    _isInString = _depth == itemDepth && name == "string";
  }

  void end() {
    if (_error) return;
    --_depth;
    if (!_isInString) return;
    _isInString = false;
    if (auto added = _strings.add(std::exchange(_text, {})); !added) fail(added.error());
  }

  std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> _parser;
  std::optional<Error> _error;
  Collected _strings;
  std::string _text;
  int _depth = 0;
  bool _hasArray = false;
  bool _isInString = false;
};

}  // namespace

LibraryNotice xmlLibrary() {
  const XML_Expat_Version version = XML_ExpatVersionInfo();
  return {.name = "Expat",
          .version =
              std::to_string(version.major) + '.' + std::to_string(version.minor) + '.' + std::to_string(version.micro),
          .licence = "MIT"};
}

Result<std::vector<std::string>> readXml(ByteView bytes) {
  if (bytes.size() > limits::propertyListBytes) return Error::tooLarge("a property list that is too long");
  return Reading().read(bytes);
}

}  // namespace quorvane::plist
