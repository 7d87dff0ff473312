#include "platform/files/file_attributes.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string_view>
#include <vector>

namespace pelmar {
namespace {

constexpr const char* kAccessList = "system.posix_acl_access";

// Rights and signatures that belong to the old content, so they are not copied.
constexpr std::string_view kOfTheContent[] = {"security.capability", "security.ima", "security.evm"};

// Makes a call for the size and, unless the size is 0, a second call for the bytes. Returns nothing on failure; errno
// has the reason.
template <typename Call>
std::optional<std::string> Fetch(const Call& call) {
  const ssize_t size = call(nullptr, 0);
  if (size < 0) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size), '\0');
  const ssize_t got = size > 0 ? call(bytes.data(), bytes.size()) : 0;
  if (got < 0) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(got));
  return bytes;
}

std::optional<std::string> Attribute(int file, const char* name) {
  return Fetch([&](void* bytes, std::size_t size) { return fgetxattr(file, name, bytes, size); });
}

int CopyAttribute(int file, const std::string& old_path, const char* name) {
  const auto value =
      Fetch([&](void* bytes, std::size_t size) { return lgetxattr(old_path.c_str(), name, bytes, size); });
  if (!value) return errno;
  // An attribute that already has the same value isn't set again, since setting a security label may be forbidden.
  if (Attribute(file, name) == value) return 0;
  return fsetxattr(file, name, value->data(), value->size(), 0) == 0 ? 0 : errno;
}

// Takes the path of the old file, since an unreadable file can't be opened.
int CopyAttributes(int file, const std::string& old_path) {
  const auto names = Fetch([&](char* list, std::size_t size) { return llistxattr(old_path.c_str(), list, size); });
  if (!names) return errno == ENOTSUP ? 0 : errno;
  bool access_list = false;
  for (std::size_t at = 0; at < names->size(); at += std::strlen(names->c_str() + at) + 1) {
    const char* const name = names->c_str() + at;
    if (std::ranges::find(kOfTheContent, name) != std::end(kOfTheContent)) continue;
    access_list = access_list || std::strcmp(name, kAccessList) == 0;
    if (const int error = CopyAttribute(file, old_path, name)) return error;
  }
  // The folder may have given the new file an access list. If the old file had none, the new list is removed, since
  // this list could admit users whom the old file kept out.
  if (access_list || fremovexattr(file, kAccessList) == 0 || errno == ENODATA || errno == ENOTSUP) return 0;
  return errno;
}

}  // namespace

int GiveAttributes(int file, const std::string& old_path, const struct stat& old) {
  struct stat now {};
  if (fstat(file, &now) != 0) return errno;
  const bool other = now.st_uid != old.st_uid || now.st_gid != old.st_gid;
  if (other && fchown(file, old.st_uid, old.st_gid) != 0) return errno;
  if (const int error = CopyAttributes(file, old_path)) return error;
  const mode_t mode = old.st_mode & kKeptMode;
  if (fchmod(file, mode) == 0) return 0;
  const int error = errno;
  // A file system without permissions (FAT) may refuse the call even if the file has this mode already.
  return fstat(file, &now) == 0 && (now.st_mode & 07777) == mode ? 0 : error;
}

}  // namespace pelmar
