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

// The message that the dialog shows (UTF-8) instead of accepting, "" where it accepts.
std::string_view ProfileComplaint(const ProfileFields& fields);

// Name, address and password. required: the password is stored without the check mark too, and uncompared then.
void StoreProfile(const ProfileFields& fields, SettingsRecord& settings);

}  // namespace pelmar
