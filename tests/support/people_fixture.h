// A program with its dialogs of people: the users, the login and the profile.

#ifndef VELNOR_TESTS_SUPPORT_PEOPLE_FIXTURE_H_
#define VELNOR_TESTS_SUPPORT_PEOPLE_FIXTURE_H_

#include <string>
#include <vector>

#include "tests/support/program_fixture.h"

namespace velnor {

class PeopleTest : public ProgramTest {
 protected:
  void OpenUsers() { OpenDialog(202, users_); }
  void OpenLogin() { OpenDialog(200, login_); }
  void OpenProfile() { OpenDialog(204, profile_); }
  std::vector<std::string> Add(const std::string& name) {
    users_.SetText(701, name);
    users_.Press(702);
    return boxes_.TakeTexts();
  }
  void Register(const std::string& name) {
    OpenUsers();
    EXPECT_TRUE(Add(name).empty());
    users_.Press(1);
  }
  std::vector<std::string> LogIn(const std::string& name) {
    OpenLogin();
    login_.Choose(700, name);
    login_.Press(1);
    return boxes_.TakeTexts();
  }
  std::string Registry() const { return folder_.Read("users.ASC"); }
  std::string User() const {
    const std::optional<UserFolder>& user = program_->session().user;
    return user ? user->name() : "";
  }

  FakeForm users_;
  FakeForm login_;
  FakeForm profile_;
};

}  // namespace velnor

#endif  // VELNOR_TESTS_SUPPORT_PEOPLE_FIXTURE_H_
