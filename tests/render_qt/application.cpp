#include <QGuiApplication>
#include <gtest/gtest.h>

#include <memory>

namespace orb::tests {
namespace {

/// Fonts need an application; it draws on no screen.
class Application : public ::testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QGuiApplication>(count_, arguments_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[5] = "test";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};

const auto* const Registered = ::testing::AddGlobalTestEnvironment(new Application);

}  // namespace
}  // namespace orb::tests
