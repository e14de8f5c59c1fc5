// The desktop program as a process.
#include <QFileInfo>
#include <QLockFile>
#include <QProcess>

#include "ui/UiTest.h"

namespace zg::test {
namespace {

namespace fs = std::filesystem;

// An application directory with the program in it, as a user carries it about.
class Program : public ::testing::Test {
 protected:
  Program() : executable_(ToQString(Folder.Path() + "zephyrgram")) {
    const fs::path built = fs::path(ZG_BINARY_DIR) / "zephyrgram";
    std::error_code error;
    fs::create_hard_link(built, executable_.toStdString(), error);
    if (error) fs::copy_file(built, executable_.toStdString());
  }

  void Start(QProcess& process, const QStringList& arguments = {}) {
    process.setProgram(executable_);
    process.setArguments(arguments);
    process.start();
    ASSERT_TRUE(process.waitForStarted());
  }

  ApplicationFolder Folder;

 private:
  QString executable_;
};

TEST_F(Program, SecondStartEndsAtOnceAndLeavesTheFirst) {
  QProcess first;
  Start(first);
  const QString lock = ToQString(Folder.Path() + "zephyrgram.lock");
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFileInfo::exists(lock); }, 30000));
  QProcess second;
  Start(second);
  EXPECT_TRUE(second.waitForFinished());
  EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(second.exitCode(), 0);
  EXPECT_EQ(first.state(), QProcess::Running);
  first.kill();
  first.waitForFinished();
}

TEST_F(Program, LockOfAProgramThatWasKilledIsNoLock) {
  const QString lock = ToQString(Folder.Path() + "zephyrgram.lock");
  QProcess killed;
  Start(killed);
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFileInfo::exists(lock); }, 30000));
  killed.kill();
  ASSERT_TRUE(killed.waitForFinished());
  QProcess next;
  Start(next);
  const auto owns = [&] {
    qint64 owner = 0;
    QString host;
    QString name;
    return QLockFile(lock).getLockInfo(&owner, &host, &name) && owner == next.processId();
  };
  EXPECT_TRUE(QTest::qWaitFor(owns, 30000));
  next.kill();
  next.waitForFinished();
}

}  // namespace
}  // namespace zg::test
