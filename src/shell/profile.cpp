#include "shell/profile.h"

namespace pelmar {

std::string_view ProfileComplaint(const ProfileFields& fields) {
  if (fields.name.empty()) return "Vyplňte prosím své jméno.";
  if (fields.email.empty()) return "Vyplňte prosím E-m@il.";
  if (fields.check_password && fields.password != fields.password_again)
    return "Zkontrolujete zprávnot zadaného hesla.";
  return {};
}

void StoreProfile(const ProfileFields& fields, SettingsRecord& settings) {
  settings.UserName = fields.name;
  settings.UserEmail = fields.email;
  settings.LockPassword = fields.password;
}

}  // namespace pelmar
