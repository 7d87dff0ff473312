// The rules of the profile dialog Config: which input is refused, and which values are stored. Texts are Windows-1250.
#pragma once

#include <string>
#include <string_view>

#include "shell/settings_record.h"

namespace pelmar {

struct ProfileFields {
  std::string name;
  std::string email;
  bool check_password = false;
  std::string password;
  std::string password_again;
};

enum class ProfileField { kNone, kName, kEmail, kPassword };

// The first refused field and the message about this field (UTF-8). kNone if all fields are accepted.
struct ProfileComplaint {
  ProfileField field = ProfileField::kNone;
  std::string_view message = {};
};
ProfileComplaint CheckProfile(const ProfileFields& fields);

// Stores name, address and password. required: without `check_password` the password is stored although nobody compared
// it with `password_again`.
void StoreProfile(const ProfileFields& fields, SettingsRecord& settings);

}  // namespace pelmar
