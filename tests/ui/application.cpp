#include <QApplication>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

namespace orb::tests {
namespace {

/// The one application that all tests of the window share, without a screen.
class OffscreenApplication : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, arguments_.data());
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  std::string name_ = "test";
  std::array<char*, 2> arguments_{name_.data(), nullptr};
  std::unique_ptr<QApplication> application_;
};

const auto* const Registered = testing::AddGlobalTestEnvironment(new OffscreenApplication);

}  // namespace
}  // namespace orb::tests
