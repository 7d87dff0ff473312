#include "shell/profile.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

TEST(Profile, RefusesInTheToldOrder) {
  const struct {
    ProfileFields fields;
    ProfileField field;
    std::string_view message;
  } cases[] = {
      {{"", "", true, "a", "b"}, ProfileField::kName, "Vyplňte prosím své jméno."},
      {{"Jan", "", true, "a", "b"}, ProfileField::kEmail, "Vyplňte prosím E-m@il."},
      {{"Jan", "@", true, "a", "A"}, ProfileField::kPassword, "Zkontrolujete zprávnot zadaného hesla."},
      {{"Jan", "@", true, "a", "a"}, ProfileField::kNone, ""},
      {{"Jan", "@", true, "", ""}, ProfileField::kNone, ""},
      {{"Jan", "@", false, "a", "b"}, ProfileField::kNone, ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(CheckProfile(c.fields).message, c.message);
    EXPECT_EQ(CheckProfile(c.fields).field, c.field) << c.message;
  }
}

// required: the password goes in without the check mark and without a comparison
TEST(Profile, StoresThePasswordInAnyCase) {
  SettingsRecord settings;
  StoreProfile({"Jan", "@", false, "secret", "other"}, settings);
  EXPECT_EQ(settings.LockPassword, "secret");
  StoreProfile({"Jan", "@", false, "", "other"}, settings);
  EXPECT_EQ(settings.LockPassword, "");
}

}  // namespace
}  // namespace pelmar
