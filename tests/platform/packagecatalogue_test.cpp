// Neither lane has the package runtime (Wine lacks the runtime class; a sandbox without a
// catalogue file stands for such a machine), so the contract is how the catalogue fails, and
// what the resource loader does with texts it cannot resolve.

#include "contract.h"

#include <gtest/gtest.h>

using platform::CatalogueStatus;
using platform::PackageRecord;

TEST(PackageCatalogueContract, MissingRuntimeEndsTheWalkAtActivationWithAFailureCode)
{
    const auto catalogue = contract::makeContractCatalogue();
    // Twice: the apartment opened for the first walk must have been closed again.
    for (int round = 0; round < 2; ++round) {
        int asked = 0;
        int visited = 0;
        const CatalogueStatus status = catalogue->forEachPackage(
            [&](const PackageRecord&) {
                ++asked;
                return true;
            },
            [&](const PackageRecord&) { ++visited; });
        EXPECT_FALSE(status.ok);
        EXPECT_NE(status.error & 0x80000000u, 0u) << std::hex << status.error; // a failure HRESULT
        EXPECT_EQ(status.failedCall, "activate");
        EXPECT_EQ(asked, 0);
        EXPECT_EQ(visited, 0);
    }
}

TEST(PackageCatalogueContract, ResourceReferenceOfAnUnknownPackageIsNotResolved)
{
    const auto catalogue = contract::makeContractCatalogue();
    EXPECT_FALSE(catalogue->loadIndirectString(
        L"@{Nobody.Missing_1.0.0.0_x64__0000000000000?ms-resource://Nobody.Missing/Resources/AppName}"));
}
