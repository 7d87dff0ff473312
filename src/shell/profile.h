// The rules of the profile dialog Config: what it refuses, and what it puts into the settings. Texts are Windows-1250.
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

// Which field keeps the dialog from accepting, kNone where it accepts, and the message that it shows then (UTF-8).
struct ProfileComplaint {
  ProfileField field = ProfileField::kNone;
  std::string_view message = {};
};
ProfileComplaint CheckProfile(const ProfileFields& fields);

// Name, address and password. required: the password is stored without the check mark too, and uncompared then.
void StoreProfile(const ProfileFields& fields, SettingsRecord& settings);

}  // namespace pelmar
