// The typed message as it is kept for the next time: "LineInputMsg.Dat" in the application
// directory, a text file that holds the last one.
//
// Errors are the path and the reason, in English; empty where all went well.
#pragma once

#include <string>
#include <string_view>

namespace zg {

inline constexpr std::string_view TypedMessageFile = "LineInputMsg.Dat";

// A typed text as far as it counts: up to the character behind the first "=", or, where there is
// none, trimmed and ended with " =". Line ends within stay. An empty text stays empty.
std::string CutTypedMessage(std::string_view text);

struct TypedMessage {
  std::string Text;  // in upper case, a line end behind each line; empty if there is no file
  std::string Error;
};
TypedMessage LoadTypedMessage(const std::string& applicationPath);

// Keeps what CutTypedMessage leaves of the text.
std::string SaveTypedMessage(const std::string& applicationPath, std::string_view text);

// Removes the file. That there is none is as good.
std::string DeleteTypedMessage(const std::string& applicationPath);

}  // namespace zg
