#include "shell/profile.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

TEST(Profile, RefusesInTheToldOrder) {
  const struct {
    ProfileFields fields;
    std::string_view complaint;
  } cases[] = {
      {{"", "", true, "a", "b"}, "Vyplňte prosím své jméno."},
      {{"Jan", "", true, "a", "b"}, "Vyplňte prosím E-m@il."},
      {{"Jan", "@", true, "a", "A"}, "Zkontrolujete zprávnot zadaného hesla."},
      {{"Jan", "@", true, "a", "a"}, ""},
      {{"Jan", "@", true, "", ""}, ""},
      {{"Jan", "@", false, "a", "b"}, ""},
  };
  for (const auto& c : cases) EXPECT_EQ(ProfileComplaint(c.fields), c.complaint);
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
