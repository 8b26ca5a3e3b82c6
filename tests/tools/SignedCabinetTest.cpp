// Signing with a self-made certificate: the program in the cabinet and the cabinet.
#include "tests/tools/CabinetView.h"
#include "tests/tools/Packaging.h"

#include <gtest/gtest.h>

class SignedCabinetTest : public testing::Test
{
  protected:
    TempFolder keys;
    TempFolder files;
    TempFolder output;
    std::string cabinet = output.Path("Quorvane.cab");
    std::string certificate = keys.Path("certificate.pem");
    std::string key = keys.Path("key.pem");

    void SetUp() override { MakeCertificate(certificate, key); }

    static void MakeCertificate(const std::string& certificateFile, const std::string& keyFile)
    {
        const ProgramResult result = RunPackaging(
            {"openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "30", "-subj", "/CN=Test",
             "-addext", "extendedKeyUsage=codeSigning", "-out", certificateFile, "-keyout", keyFile});
        ASSERT_EQ(result.exitCode, 0) << result.errors;
    }

    ProgramResult Verify(const std::string& file) const
    {
        return RunPackaging({"osslsigncode", "verify", "-CAfile", certificate, "-in", file});
    }

    static void ExpectCertificateRefused(const std::string& first, const std::string& second,
                                         const std::string& words)
    {
        const ProgramResult result = RunPackaging({"check_certificate", first, second});
        EXPECT_EQ(result.exitCode, 1);
        ExpectOneLine(result.errors, "packaging");
        EXPECT_NE(result.errors.find(words), std::string::npos) << result.errors;
    }
};

TEST_F(SignedCabinetTest, TheProgramAndTheCabinetAreSigned)
{
    const Bytes program = ReadAll(QV_BUILT_EXECUTABLE);
    files.Put("Quorvane.exe", program);
    files.Put("Quorvane.zrs", Noise(33333, 2));
    ASSERT_EQ(Verify(files.Path("Quorvane.exe")).exitCode, 1) << "an unsigned program passes";
    const ProgramResult result = MakeCabinet(files, cabinet, ":", {certificate, key});
    ASSERT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(ReadAll(files.Path("Quorvane.exe")), program) << "the build's own file was signed";

    const ProgramResult verified = Verify(cabinet);
    EXPECT_EQ(verified.exitCode, 0);
    // The only digest that devices of that time know.
    EXPECT_NE(verified.output.find("Message digest algorithm  : SHA1\n"), std::string::npos)
        << verified.output;
    const std::vector<CabinetMember> members = ReadCabinet(ReadAll(cabinet));
    const std::vector<std::string> names = {"QUORVANE.000", "QUORVANE.002", "QUORVANE.001", "_setup.xml"};
    ASSERT_EQ(NamesOf(members), names);
    EXPECT_EQ(members[1].content, Noise(33333, 2));
    const std::string installed = output.Put("installed.exe", members[2].content);
    EXPECT_EQ(Verify(installed).exitCode, 0);

    // One bit changed in either makes its signature void.
    for (const std::string& file : {cabinet, installed}) {
        Bytes changed = ReadAll(file);
        changed.at(changed.size() / 2) ^= 1;
        EXPECT_EQ(Verify(output.Put("changed", changed)).exitCode, 1) << file;
    }
}

TEST_F(SignedCabinetTest, AProgramThatCannotBeSignedMakesNoCabinet)
{
    PutStandIns(files);
    const ProgramResult result = MakeCabinet(files, cabinet, ":", {certificate, key});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find("packaging: failed: osslsigncode sign"), std::string::npos) << result.errors;
    EXPECT_TRUE(output.Names().empty());
}

TEST_F(SignedCabinetTest, CertificatesAndKeysThatCannotBeUsedAreRefused)
{
    EXPECT_EQ(RunPackaging({"check_certificate", certificate, key}).exitCode, 0);
    const std::string other = keys.Path("other.pem");
    const std::string otherKey = keys.Path("other-key.pem");
    MakeCertificate(other, otherKey);
    ExpectCertificateRefused(certificate, otherKey,
                             "the key " + otherKey + " does not belong to the certificate ");
    const std::string text = keys.Put("text.pem", {'x'});
    ExpectCertificateRefused(text, key, text + " is not a certificate in PEM form");
    ExpectCertificateRefused(certificate, text, text + " is not a private key in PEM form");
    ExpectCertificateRefused(key, certificate, key + " is not a certificate in PEM form");
    const std::string locked = keys.Path("locked.pem");
    ASSERT_EQ(
        RunPackaging({"openssl", "pkey", "-in", key, "-aes128", "-passout", "pass:secret", "-out", locked})
            .exitCode,
        0);
    ExpectCertificateRefused(certificate, locked, "without a pass phrase");
}
