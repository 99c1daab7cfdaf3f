#include "platform/linuxupdates/UpdateCheck.h"

#include <gtest/gtest.h>
#include <sodium.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QTest>

#include "platform/qt/QtMainThread.h"

namespace kinesta::testing {
namespace {

using Stage = UpdateProgress::Stage;

/// An update server with an authority of its own on the loopback interface, and a person's check.
struct UpdateChecking : ::testing::Test {
    UpdateChecking() {
        const auto make = [this](const QStringList& arguments) {
            QProcess openssl;
            openssl.setWorkingDirectory(folder.path());
            openssl.start("openssl", arguments);
            EXPECT_TRUE(openssl.waitForFinished() && openssl.exitCode() == 0) << openssl.readAll().toStdString();
        };
        make({"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", "key.pem", "-out", "authority.pem", "-days",
              "2", "-subj", "/CN=localhost", "-addext", "subjectAltName=DNS:localhost"});
        qputenv("SSL_CERT_FILE", path("authority.pem").toUtf8());
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        tls.setLocalCertificateChain(QSslCertificate::fromPath(path("authority.pem")));
        tls.setPrivateKey(QSslKey(fileContent("key.pem"), QSsl::Rsa));
        server.setSslConfiguration(tls);
        QObject::connect(&server, &QSslServer::pendingConnectionAvailable, &server, [this] { serve(); });
        EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
        publicKey.resize(crypto_sign_PUBLICKEYBYTES);
        secretKey.resize(crypto_sign_SECRETKEYBYTES);
        crypto_sign_keypair(publicKey.data(), secretKey.data());
        answers["/kinesta_1.2.deb"] = ok(program);
    }

    QString path(const QString& file) const { return folder.filePath(file); }
    QByteArray fileContent(const QString& file) const {
        QFile opened(path(file));
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }
    QByteArray address(const QByteArray& place) const {
        return "https://localhost:" + QByteArray::number(server.serverPort()) + place;
    }
    static QByteArray ok(const QByteArray& body) {
        return "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size()) +
               "\r\n\r\n" + body;
    }
    static QByteArray redirect(const QByteArray& to) {
        return "HTTP/1.1 302 Found\r\nConnection: close\r\nContent-Length: 0\r\nLocation: " + to + "\r\n\r\n";
    }
    QByteArray signature(const QByteArray& content) const {
        QByteArray bytes(crypto_sign_BYTES, 0);
        crypto_sign_detached(reinterpret_cast<unsigned char*>(bytes.data()), nullptr,
                             reinterpret_cast<const unsigned char*>(content.data()),
                             static_cast<unsigned long long>(content.size()), secretKey.data());
        return bytes.toBase64();
    }
    QByteArray release(const QByteArray& version, const QByteArray& signedBy, const QByteArray& system = "linux",
                       const QByteArray& minimum = "2.36") const {
        return "<release version='" + version + "' system='" + system + "' architecture='x86_64' minimumSystem='" +
               minimum + "' url='" + address("/kinesta_1.2.deb") + "' length='" + QByteArray::number(program.size()) +
               "' signature='" + signedBy + "'/>";
    }
    static QByteArray feed(const QByteArray& releases) { return ok("<feed>" + releases + "</feed>"); }

    void serve() {
        QTcpSocket* socket = server.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            const QByteArray request = socket->readAll();
            requests += request;
            socket->write(answers.value(request.split(' ').value(1)));
            socket->disconnectFromHost();
        });
    }

    /// What a check and, if it finds something, a download end with; then all files that were kept.
    std::string update() {
        UpdateCheck check({.mainThread = mainThread,
                           .running = {"1.9", "linux", "x86_64", "2.36"},
                           .folder = path("downloads").toStdString()},
                          {address("/feed").toStdString(), {publicKey.begin(), publicKey.end()}});
        check.check();
        const auto wait = [&] {
            EXPECT_TRUE(QTest::qWaitFor([&] { return !check.progress().value().isBusy(); }, 10'000));
        };
        wait();
        std::string result;
        if (check.progress().value().stage == Stage::found) {
            result = "found " + check.progress().value().release.version + "; ";
            check.download();
            wait();
        }
        const UpdateProgress& end = check.progress().value();
        result += end.stage == Stage::upToDate ? "up to date" : end.stage == Stage::finished ? "kept" : end.problem;
        const auto files = QDir(path("downloads")).entryList(QDir::Files | QDir::Hidden);
        return files.isEmpty() ? result : result + ": " + files.join(", ").toStdString();
    }

    int argc = 1;
    char name[1] = "";
    char* argv[1] = {name};
    QCoreApplication application{argc, argv};
    QTemporaryDir folder;
    QSslServer server;
    QMap<QByteArray, QByteArray> answers;
    QByteArray requests;
    QByteArray program{300'000, 'x'};
    std::vector<unsigned char> publicKey, secretKey;
    QtMainThread mainThread;
};

TEST_F(UpdateChecking, KeepsTheNewestSignedReleaseOfThisSystem) {
    const QByteArray genuine = signature(program);
    answers["/old-feed"] =
        feed(release("1.10", genuine) + "<later/>" + release("1.9.9", genuine) + release("2", genuine, "macos") +
             release("3", genuine, "linux", "2.37") + release("1.11", "") + release("newest", genuine));
    answers["/feed"] = redirect(address("/old-feed"));
    EXPECT_EQ(update(), "found 1.10; kept: kinesta_1.2.deb");
    EXPECT_EQ(fileContent("downloads/kinesta_1.2.deb"), program);
    EXPECT_EQ(update(), "found 1.10; kept: kinesta_1.2 (2).deb, kinesta_1.2.deb");
    for (const char* personal : {"Cookie", "?", "Mozilla", "1.9"})
        EXPECT_FALSE(requests.contains(personal)) << personal;
    EXPECT_EQ(requests.count("Accept-Language: en\r\n"), requests.count("GET "));
}

TEST_F(UpdateChecking, KeepsNothingThatIsNotRight) {
    const QByteArray genuine = signature(program);
    const std::string unsigned_ = "found 2; The update is not signed by the makers of Kinesta. Nothing was kept.";
    for (const auto& [releases, file, result] : std::vector<std::tuple<QByteArray, QByteArray, std::string>>{
             {release("2", signature("other")), ok(program), unsigned_},
             {release("2", genuine), ok(QByteArray(program.size(), 'y')), unsigned_},
             {release("2", genuine), ok(program.chopped(1)), "found 2; The update is incomplete. Nothing was kept."},
             {release("2", genuine), ok(program).chopped(1),
              "found 2; The update cannot be downloaded: Connection closed."},
             {release("2", genuine), ok(program + "x"),
              "found 2; The update cannot be downloaded: it is longer than it may be."},
             {release("2", genuine), redirect("http://localhost/kinesta_1.2.deb"),
              "found 2; The update cannot be downloaded: Insecure redirect."},
             {release("1.9", genuine), ok(program), "up to date"},
             {release("1.8.9", genuine), ok(program), "up to date"},
             {"", "", "up to date"}}) {
        answers["/feed"] = feed(releases);
        answers["/kinesta_1.2.deb"] = file;
        EXPECT_EQ(update(), result);
    }
    for (const auto& [text, problem] : std::vector<std::pair<QByteArray, std::string>>{
             {redirect("http://localhost/feed"), "Insecure redirect"},
             {redirect(address("/feed")), "Too many redirects"},
             {ok("<rss/>"), "it is not an update feed"},
             {ok("<feed>"), "line 1: Premature end of document."},
             {ok("<!DOCTYPE feed [<!ENTITY a 'aa'><!ENTITY b '&a;&a;'>]><feed>&b;</feed>"),
              "it declares entities or a document type"},
             {ok("<feed>" + QByteArray(2 << 20, ' ') + "</feed>"), "it is longer than it may be"}}) {
        answers["/feed"] = text;
        EXPECT_EQ(update(), "The update feed cannot be read: " + problem + ".");
    }
    qunsetenv("SSL_CERT_FILE");
    answers["/feed"] = feed(release("2", genuine));
    EXPECT_NE(update().find("certificate"), std::string::npos) << "an untrusted authority";
}

}  // namespace
}  // namespace kinesta::testing
