#include "platform/environment.h"
#include "platform/registry.h"
#include "support/scratch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Registry, IsATextFileInTheDataFolder) {
    ScratchFolder data;
    folders.dataDir = data.path.string();
    EXPECT_THAT(registryKeys(REGISTRY_MACHINE, "Software"), IsEmpty()) << "no file, no keys";

    data.write("registry.txt", "stray=line\r\n"
                               "[2\\Software\\Vendor\\Product A/B\\10.1]\r\n"
                               "ProductDir=C:\\Product=X\r\n"
                               "StartCount=dword:3\r\n"
                               "\r\n"
                               "[2\\Software\\Vendor\\Product A/B\\9.0\\Setup]\n"
                               "[2\\software\\vendor\\Product A/B\\9.0\\Other\\]\n"
                               "[1\\Software\\Vendor\\Mine]\n"
                               "Empty=\n"
                               "[no end\n");
    EXPECT_THAT(registryKeys(REGISTRY_MACHINE, "Software\\Vendor\\Product A/B\\"), ElementsAre("10.1", "9.0"));
    EXPECT_THAT(registryKeys(REGISTRY_MACHINE, "Software\\Vendor\\Product A/B\\9.0"), ElementsAre("Setup", "Other"));
    EXPECT_THAT(registryKeys(REGISTRY_USER, "Software\\Vendor"), ElementsAre("Mine"));

    RegistryValue text = enquireRegistryValue(REGISTRY_MACHINE, "SOFTWARE\\vendor\\Product A/B\\10.1", "productdir");
    EXPECT_EQ(text.type, REGISTRY_TEXT);
    EXPECT_EQ(text.text, "C:\\Product=X");
    RegistryValue number = enquireRegistryValue(REGISTRY_MACHINE, "Software\\Vendor\\Product A/B\\10.1", "StartCount");
    EXPECT_EQ(number.type, REGISTRY_NUMBER);
    EXPECT_EQ(number.number, 3);
    EXPECT_EQ(enquireRegistryValue(REGISTRY_USER, "Software\\Vendor\\Mine", "Empty").type, REGISTRY_TEXT);
    EXPECT_EQ(enquireRegistryValue(REGISTRY_MACHINE, "Software\\Vendor\\Mine", "Empty").type, 0);

    RegistryKeyInfo info = enquireRegistryKey(REGISTRY_MACHINE, "Software\\Vendor\\Product A/B");
    EXPECT_EQ(info.subkeys, 2);
    EXPECT_EQ(info.longestSubkey, 4);
}
