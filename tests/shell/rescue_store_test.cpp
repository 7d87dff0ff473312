#include "shell/rescue_store.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace pelmar {
namespace {

int WritePlainly(const std::string& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
  return 0;
}

std::string Content(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

struct RescueStoreTest : testing::Test {
  RescueStoreTest() {
    std::string name = (std::filesystem::temp_directory_path() / "rescueXXXXXX").string();
    folder = std::string(::mkdtemp(name.data())) + "/";
  }
  ~RescueStoreTest() override { std::filesystem::remove_all(folder); }
  [[nodiscard]] std::size_t Files() const {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator()));
  }
  // Another copy keeps something and dies without a word.
  void LetACopyDie(const std::string& bytes) const {
    const pid_t child = ::fork();
    if (child == 0) {
      RescueStore store(folder, kDocumentsRescue, WritePlainly);
      store.Keep(bytes);
      ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
  }

  std::string folder;
};

TEST_F(RescueStoreTest, AnOrdinaryEndLeavesNothing) {
  RescueStore store(folder, kDocumentsRescue, WritePlainly);
  EXPECT_EQ(Files(), 0u);
  EXPECT_EQ(store.Keep("one"), 0);
  EXPECT_EQ(store.Keep("two"), 0);
  EXPECT_EQ(Content(store.Path()), "two");
  EXPECT_TRUE(FindAbandoned(folder, kDocumentsRescue).empty());  // a living copy's file is nobody else's
  EXPECT_EQ(store.Keep({}), 0);
  EXPECT_EQ(Files(), 0u);
  EXPECT_EQ(store.Keep("again"), 0);
  EXPECT_EQ(Content(store.Path()), "again");
}

TEST_F(RescueStoreTest, WhatADeadCopyKeptIsFoundOnce) {
  LetACopyDie("lost");
  RescueStore own(folder, kDocumentsRescue, WritePlainly);
  own.Keep("mine");
  auto found = FindAbandoned(folder, kDocumentsRescue);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(Content(found[0].path), "lost");
  EXPECT_TRUE(FindAbandoned(folder, kDocumentsRescue).empty());  // held by the first finder
  Discard(found[0]);
  EXPECT_TRUE(FindAbandoned(folder, kDocumentsRescue).empty());
  EXPECT_EQ(Content(own.Path()), "mine");
}

TEST_F(RescueStoreTest, AFinderThatDiesLeavesItForTheNext) {
  LetACopyDie("lost");
  FindAbandoned(folder, kDocumentsRescue).clear();
  EXPECT_EQ(FindAbandoned(folder, kDocumentsRescue).size(), 1u);
}

TEST_F(RescueStoreTest, AFolderThatCantBeWrittenIsAnError) {
  RescueStore store("/nonexistent/folder/", kDocumentsRescue, WritePlainly);
  EXPECT_NE(store.Keep("x"), 0);
  EXPECT_TRUE(FindAbandoned("/nonexistent/folder/", kDocumentsRescue).empty());
}

}  // namespace
}  // namespace pelmar
