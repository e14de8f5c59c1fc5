// The parameter store, the scrambling of stored passwords and the bit fields of records.
//
// The parameters stand in "zephyrgram.ini" in the application directory, a line "key = value" each.
// Nothing is cached: a value that was set is what the next read finds, and the file may be edited
// while the program runs. "zephyrgram.def" beside it holds the values as shipped.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "shell/Platform.h"
#include "tables/TextUtility.h"

namespace zg {

// --- Bit fields ----------------------------------------------------------------------------------

inline constexpr std::string_view SetFlagsError = "SetFlags Error";
inline constexpr std::string_view ReadFlagsError = "ReadFlags Error";

// Sets the one bit `Position` (0 to 31): what decoders do all the time, without any test.
constexpr void SetFlag(std::int32_t& Flags, unsigned Position) noexcept {
  Flags = static_cast<std::int32_t>(static_cast<std::uint32_t>(Flags) | (1u << Position));
}

// True if the bit `Position` (0 to 31) is set.
constexpr bool HasFlag(std::int32_t Flags, unsigned Position) noexcept {
  return (static_cast<std::uint32_t>(Flags) >> Position & 1u) != 0;
}

// Clears the field of `NunOfBit` bits that begins at bit `Position` and puts `Data` there; bits of
// `Data` beyond the field reach the bits above it. False, and nothing changed, if the field does
// not end within the 32 bits.
[[nodiscard]] bool SetFlags(std::int32_t& Flags, std::uint8_t Position, std::uint8_t NunOfBit,
                            std::int64_t Data) noexcept;

// The value of the field; nothing if it does not end within the 32 bits.
std::optional<std::int32_t> ReadFlags(std::int32_t Flags, std::uint8_t Position,
                                      std::uint8_t NunOfBit) noexcept;

// --- Scrambling ----------------------------------------------------------------------------------
// It keeps a password from being read over one's shoulder and protects from nothing else.

// The text as hexadecimal digits, each byte less a small number that runs with its place. Comes
// back whole for bytes of at least 32.
std::string Encript(std::string_view InputValue);
// The inverse. What is no pair of hexadecimal digits counts as 0.
std::string Decript(std::string_view InputValue);

// Two passes: the form in which passwords are stored.
std::string Encript2(std::string_view InputValue);
std::string Decript2(std::string_view InputValue);

// --- Parameters ----------------------------------------------------------------------------------

class GenericUtility {
 public:
  // `applicationPath` is the application directory and ends in "/". Prompt and texts must outlive
  // this object.
  GenericUtility(std::string applicationPath, Prompt& prompt, const TextUtility& textUtility);

  const std::string& ApplicationPath() const noexcept { return applicationPath_; }

  // The trimmed text behind the first "=" of the first line that begins with `Param` and has one.
  // The test looks at the beginning only: a key that is the beginning of another must stand ahead
  // of it in the file. Without such a line the result is `Default`, and if that is empty, or if the
  // file cannot be read, a message box tells so and the result is empty.
  std::string GetParameter(std::string_view Param, std::string_view Default = {}) const;

  // Gives every line whose key is `Param` the value, or appends such a line. Other lines stay as
  // they are. A line end within the value becomes a blank. A failure is shown in a message box and
  // puts the shipped values in place of all parameters; the file as it was is kept beside it as
  // "zephyrgram.ini.bak". Where even that fails the file stays as it is.
  void SetParameter(std::string_view Param, std::string_view Value) const;

  // The free functions of the same name; a field that does not fit is told in a message box and
  // changes nothing (reads as 0).
  void SetFlags(std::int32_t& Flags, std::uint8_t Position, std::uint8_t NunOfBit,
                std::int64_t Data) const;
  std::int32_t ReadFlags(std::int32_t Flags, std::uint8_t Position, std::uint8_t NunOfBit) const;

 private:
  std::string PathOf(std::string_view name) const;
  void LoadDefaults(std::string_view failure) const;

  std::string applicationPath_;
  Prompt& prompt_;
  const TextUtility& textUtility_;
};

}  // namespace zg
