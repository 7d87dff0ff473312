#include "shell/profile.h"

namespace pelmar {

ProfileComplaint CheckProfile(const ProfileFields& fields) {
  if (fields.name.empty()) return {ProfileField::kName, "Vyplňte prosím své jméno."};
  if (fields.email.empty()) return {ProfileField::kEmail, "Vyplňte prosím E-m@il."};
  if (fields.check_password && fields.password != fields.password_again)
    return {ProfileField::kPassword, "Zkontrolujete zprávnot zadaného hesla."};
  return {};
}

void StoreProfile(const ProfileFields& fields, SettingsRecord& settings) {
  settings.UserName = fields.name;
  settings.UserEmail = fields.email;
  settings.LockPassword = fields.password;
}

}  // namespace pelmar
