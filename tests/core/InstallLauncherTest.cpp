// The launcher of an installed copy, run against a made-up installation whose "executable" is a
// small script that says where it was started from.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct Installation {
    QTemporaryDir dir;
    QString prefix = dir.path() + QStringLiteral("/usr");
    QString home = dir.path() + QStringLiteral("/home");
    QString folder = home + QStringLiteral("/OstrelAppointmentScheduler");

    Installation() {
        QDir().mkpath(prefix + QStringLiteral("/bin"));
        QDir().mkpath(prefix + QStringLiteral("/lib/ostrel-appointment-scheduler"));
        QDir().mkpath(prefix + QStringLiteral("/share/ostrel-appointment-scheduler/data/CompletedInvoices"));
        QDir().mkpath(prefix + QStringLiteral("/share/ostrel-appointment-scheduler/data/OstrelInvoicer/Narratives"));
        QDir().mkpath(home);
        const QString launcher = prefix + QStringLiteral("/bin/ostrel-appointment-scheduler");
        QFile::copy(QStringLiteral(OSTREL_LAUNCHER), launcher);
        QFile::setPermissions(launcher, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        write(QStringLiteral("/share/ostrel-appointment-scheduler/data/StatesList.txt"), "\"AL\"\r\n");
        installExecutable("1");
    }

    void write(const QString& relative, const QByteArray& bytes, const QString& base = {}) const {
        QFile f((base.isEmpty() ? prefix : base) + relative);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly)) << f.fileName().toStdString();
        f.write(bytes);
    }
    QByteArray read(const QString& path) const {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    void installExecutable(const QByteArray& version) const {
        const QString exe = prefix + QStringLiteral("/lib/ostrel-appointment-scheduler/OstrelAppointmentScheduler");
        write(QStringLiteral("/lib/ostrel-appointment-scheduler/OstrelAppointmentScheduler"),
              "#!/bin/sh\necho \"version " + version + " from $(cd \"$(dirname \"$0\")\" && pwd) args $*\" > \"$(dirname \"$0\")/started.txt\"\n");
        QFile::setPermissions(exe, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }
    int launch(const QStringList& args = {}) const {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("HOME"), home);
        env.remove(QStringLiteral("OSTREL_DATA_FOLDER"));
        p.setProcessEnvironment(env);
        p.start(prefix + QStringLiteral("/bin/ostrel-appointment-scheduler"), args);
        if (!p.waitForFinished(20000)) return -1;
        return p.exitCode();
    }
};

} // namespace

TEST(InstallLauncher, FirstStartMakesTheOwnersFolderAndRunsTheProgramFromIt) {
    Installation i;
    ASSERT_EQ(i.launch({QStringLiteral("--x")}), 0);
    EXPECT_TRUE(QFileInfo(i.folder + QStringLiteral("/OstrelAppointmentScheduler")).isExecutable());
    EXPECT_EQ(i.read(i.folder + QStringLiteral("/StatesList.txt")), "\"AL\"\r\n");
    EXPECT_TRUE(QFileInfo(i.folder + QStringLiteral("/CompletedInvoices")).isDir());
    EXPECT_TRUE(QFileInfo(i.folder + QStringLiteral("/OstrelInvoicer/Narratives")).isDir());
    EXPECT_EQ(i.read(i.folder + QStringLiteral("/started.txt")),
              "version 1 from " + QDir(i.folder).canonicalPath().toUtf8() + " args --x\n");
}

TEST(InstallLauncher, ASecondStartReusesTheFolderAndKeepsTheOwnersData) {
    Installation i;
    ASSERT_EQ(i.launch(), 0);
    i.write(QStringLiteral("/StatesList.txt"), "\"ZZ\"\r\n", i.folder);
    i.write(QStringLiteral("/CustomerData.txt"), "owner's records", i.folder);
    ASSERT_EQ(i.launch(), 0);
    EXPECT_EQ(i.read(i.folder + QStringLiteral("/StatesList.txt")), "\"ZZ\"\r\n");
    EXPECT_EQ(i.read(i.folder + QStringLiteral("/CustomerData.txt")), "owner's records");
}

TEST(InstallLauncher, AnUpgradeReplacesTheExecutableAndNeverTheDataFiles) {
    Installation i;
    ASSERT_EQ(i.launch(), 0);
    i.write(QStringLiteral("/CustomerData.txt"), "owner's records", i.folder);
    i.write(QStringLiteral("/StatesList.txt"), "\"ZZ\"\r\n", i.folder);
    i.installExecutable("2");
    i.write(QStringLiteral("/share/ostrel-appointment-scheduler/data/StatesList.txt"), "\"AK\"\r\n");
    QDir().mkpath(i.prefix + QStringLiteral("/share/ostrel-appointment-scheduler/data/Templates/Contracts"));
    ASSERT_EQ(i.launch(), 0);
    EXPECT_TRUE(i.read(i.folder + QStringLiteral("/started.txt")).startsWith("version 2 from "));
    EXPECT_EQ(i.read(i.folder + QStringLiteral("/CustomerData.txt")), "owner's records");
    EXPECT_EQ(i.read(i.folder + QStringLiteral("/StatesList.txt")), "\"ZZ\"\r\n");
    EXPECT_TRUE(QFileInfo(i.folder + QStringLiteral("/Templates/Contracts")).isDir()); // what the upgrade adds
}
