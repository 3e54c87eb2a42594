#include "settings/about.hpp"
#include "settings/help_form.hpp"
#include "word_services/meaning_services.hpp"
#include "tests/settings/options_world.hpp"

#include <gmock/gmock.h>

namespace lexigrove
{

using MeaningServicesTest = OptionsWorld;

// Guards against a path, a query or an ending that a service does not understand, and against the wrong one of several.
TEST_F(MeaningServicesTest, EveryServiceHasItsAddress)
{
    folder.write("MeaningServices.txt",
                 "https://one.example\nhttps://two.example/\nhttp://127.0.0.1:8080\nhttps://four.example:444\n");
    MeaningServices services(folder.path());
    EXPECT_EQ(services.addressOf("CAT"), "https://two.example/CAT"); // the form's choice before any game

    for (Choice* choice : {&form.Option6, &form.Option7, &form.Option8, &form.Option9})
        choice->Value = false;
    const auto chooseAlso = [&](Choice& choice) {
        choice.Value = true; // beside the others: the last one in the services' order wins
        services.choose(form);
        return services.addressOf("CAT");
    };
    EXPECT_EQ(chooseAlso(form.Option6), "https://one.example/cgi-bin/dict.pl?term=CAT");
    EXPECT_EQ(chooseAlso(form.Option7), "https://two.example/CAT");
    EXPECT_EQ(chooseAlso(form.Option8), "http://127.0.0.1:8080/cgi-bin/dictionary?book=Dictionary&va=CAT");
    EXPECT_EQ(chooseAlso(form.Option9), "https://four.example:444/foldoc/foldoc.cgi?query=CAT&action=Search");

    for (Choice* choice : {&form.Option6, &form.Option7, &form.Option8, &form.Option9})
        choice->Value = false;
    services.choose(form);
    EXPECT_EQ(services.chosen(), MeaningServices::Computing);
}

// Guards against a player's slip in the file that leaves a service without an address or sends words in the clear.
TEST_F(MeaningServicesTest, BadLinesFallBack)
{
    folder.write("MeaningServices.txt", "\r\n  https://good.example  \r\nhttp://plain.example\r\n");
    const MeaningServices services(folder.path());
    folder.write("MeaningServices.txt", "");
    const MeaningServices builtIn(folder.path());
    EXPECT_EQ(services.host(MeaningServices::Free), "https://good.example");
    for (const auto service : {MeaningServices::Online, MeaningServices::MerriamWebster, MeaningServices::Computing})
        EXPECT_EQ(services.host(service), builtIn.host(service));

    const MeaningServices shipped(DATA_FOLDER);
    for (std::size_t i = 0; i < MeaningServices::serviceCount; ++i) {
        const auto service = static_cast<MeaningServices::Service>(i);
        EXPECT_EQ(shipped.host(service), builtIn.host(service));
        EXPECT_TRUE(isServiceAddress(shipped.host(service)));
    }
    for (const char* bad : {"", "https://", "https://a b", "ftp://x", "file:///etc/passwd", "https://user@host",
                            "https://host:", "https://host:123456", "https://host/path", "https://h\xF6st",
                            "http://localhost.example", "javascript:alert(1)"})
        EXPECT_FALSE(isServiceAddress(bad)) << bad;
}

// Guards against Back and Forward that leave the help page, and a view laid out with a negative size.
TEST(HelpForm, MovesBetweenAnchorsOnly)
{
    EXPECT_EQ(helpAddress("/games/lexi grove/"), "/games/lexi grove/lexigrove.htm");
    EXPECT_FALSE(mayLeaf("file:///games/lexigrove.htm"));
    EXPECT_TRUE(mayLeaf("file:///games/lexigrove.htm#tiles"));

    const auto size = helpViewSize(5000, 3000, 100);
    ASSERT_TRUE(size);
    EXPECT_EQ(size->width, 4880);
    EXPECT_EQ(size->height, 2420);
    EXPECT_FALSE(helpViewSize(119, 3000, 0));
    EXPECT_FALSE(helpViewSize(5000, 579, 100));
}

// Guards against a person, a contact or an address among the credits.
TEST(AboutForm, TextNamesTheProductOnly)
{
    const std::string text = AboutForm().AboutText.Caption;
    EXPECT_TRUE(text.starts_with("LexiGrove - January 2005\r\n"));
    EXPECT_THAT(text, testing::Not(testing::AnyOf(testing::HasSubstr("@"), testing::HasSubstr("://"),
                                                  testing::HasSubstr("www."))));
    EXPECT_TRUE(AboutForm::closesOnKey(27));
    EXPECT_FALSE(AboutForm::closesOnKey(13));
}

} // namespace lexigrove
