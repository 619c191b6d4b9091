// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <expected>
#include <string>
#include <system_error>
#include <type_traits>
#include <utility>

// What an operation that can fail answers: its value, or why there is none. Nothing is thrown. Words for people come
// from failure_text.h. A Result that nobody looks at is a warning, also where it is called through an interface.
namespace tarvo {

// What was tried.
enum class Attempt {
  look,
  read,
  write,
  keep,
  list,
  makeFolder,
  copy,
  remove,
  setCodes,
  install,
  uninstall,
  create,
  start,
  reach,
  store,
  fetch,
  check,  // that something is still as the product made it
  open    // by the desktop
};

// Causes that no system knows: they say what the product found.
enum class Reason {
  noPath = 1,       // a path that names nothing: empty, not absolute, or with a zero byte
  noRegularFile,    // a pipe, a device, a folder
  noPropertyList,   // bytes that are no property list
  noDictionary,     // a property list whose root is no dictionary
  intoItself,       // a folder would be copied into itself
  wholeProduct,     // what holds the whole product is never removed
  linkInTheWay,     // a link, which is never followed
  deadLink,         // a link that leads nowhere
  nothingNamed,     // a record that names nothing to install
  noInstallFolder,  // a record whose install folder is no absolute path
  missingResource,  // the product lacks what is to be installed or copied
  emptyResource,    // the product's folder of scripts holds none
  noService,        // there is no style service
  notAsked,         // it did not answer in time a moment ago and is left alone
  unreachable,      // no answer came
  unknownHost,      // its name is not known
  notTrusted,       // its certificate is not to be trusted
  refused,          // the service answered no
  contended,        // others stored at the same time
  absentThere,      // it holds none
  damaged,          // what it holds cannot be read
  noStyle,          // a property list that is no style
  foreignLink,      // a link of somebody else, who could lead it anywhere
  emptied,          // a file of the product that holds nothing any more
  foreign,          // a file in the place of one of the product
  overLimit,        // a list of more than largestListFile (plist_file.h)
  plainPassword,    // it asks for a name and a password, which go out over an encrypted connection only
  noProgram,        // the desktop has nothing that opens it
  noAddress,        // no address of it is configured
  ownFile,          // what the manager keeps for itself is no place for something else
  onItsWay          // to the service, which has not confirmed it yet
};
const std::error_category& reasonCategory();
inline std::error_code make_error_code(Reason reason) { return {static_cast<int>(reason), reasonCategory()}; }

struct Failure {
  std::string path;  // on this disk, or the address of a service; where nothing was found, what it was looked for
  Attempt attempt = Attempt::look;
  std::error_code cause;
  std::size_t line = 0, column = 0;  // of the damage in a text, from 1; 0 where no place is known
  friend bool operator==(const Failure&, const Failure&) = default;
};

// A failure of what the system was asked last in this thread: its cause is errno.
Failure systemFailure(std::string path, Attempt attempt);
// Whether the failure is that nothing is there, as against something that could not be looked at.
bool isAbsence(const Failure& failure);

// A Result<bool> would read as "yes" wherever it holds "no": such a question answers an enumeration or Result<>.
template <class T = void>
class [[nodiscard]] Result : public std::expected<T, Failure> {
  static_assert(!std::is_same_v<T, bool>);

 public:
  using std::expected<T, Failure>::expected;
  Result() = default;
  Result(Failure failure) : std::expected<T, Failure>(std::unexpect, std::move(failure)) {}
};

}  // namespace tarvo

template <>
struct std::is_error_code_enum<tarvo::Reason> : std::true_type {};
