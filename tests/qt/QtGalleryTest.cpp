// The pictures of the dialogs, drawn by kalhost as `./dev.sh screenshots`
// draws the gallery: every page of every available menu row renders without
// an assertion report to a picture that shows the page's controls, and the
// gallery's action scripts run cleanly (`./dev.sh screenshots` itself says
// when a script draws no picture). A row is covered the moment it becomes
// available.
#include "tests/support/Kalhost.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

using namespace kaltest;

namespace {

// A drawn page, not an empty frame: inside the tab control, away from its
// edges, a good share of the pixels differs from the background, in
// several colours.
std::string Blankness(const QImage& image)
{
    if (image.isNull())
        return "no picture";
    if (image.width() < 300 || image.height() < 250)
        return "a picture of " + std::to_string(image.width()) + "x" + std::to_string(image.height());
    const int left = image.width() * 6 / 100, right = image.width() * 94 / 100;
    const int top = image.height() * 14 / 100, bottom = image.height() * 84 / 100;
    std::map<QRgb, int> colours;
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x)
            ++colours[image.pixel(x, y)];
    int background = 0;
    for (const auto& [colour, count] : colours)
        background = std::max(background, count);
    const int area = (right - left) * (bottom - top);
    if (colours.size() < 8 || area - background < area / 50)
        return "a blank page (" + std::to_string(colours.size()) + " colours, " + std::to_string(area - background) +
               " of " + std::to_string(area) + " pixels drawn)";
    return {};
}

struct GalleryScript {
    std::string name;
    std::string id;
    std::vector<std::string> options;
    std::string actions;
};

// docs/gallery/NAME.kal: "# kalhost OPTIONS" (paths from the top of the
// sources), "open ID", then the actions.
std::vector<GalleryScript> GalleryScripts()
{
    std::vector<GalleryScript> scripts;
    const std::filesystem::path dir = std::filesystem::path(KAL_SOURCE_DIR) / "docs/gallery";
    for (const auto& entry : std::filesystem::directory_iterator(dir)) {
        if (entry.path().extension() != ".kal")
            continue;
        GalleryScript script{entry.path().stem().string(), {}, {}, {}};
        std::ifstream in(entry.path());
        for (std::string line; std::getline(in, line);) {
            if (line.starts_with("# kalhost ")) {
                std::istringstream words(line.substr(10));
                for (std::string word; words >> word;)
                    script.options.push_back(script.options.size() && script.options.back() == "--data"
                                                 ? std::string(KAL_SOURCE_DIR) + "/" + word
                                                 : word);
            } else if (line.starts_with("open ")) {
                script.id = line.substr(5);
            } else {
                script.actions += line + "\n";
            }
        }
        scripts.push_back(std::move(script));
    }
    return scripts;
}

} // namespace

TEST(Gallery, EveryPageOfEveryAvailableDialogRendersWithoutAssertion)
{
    TempDir dir;
    const auto rows = AvailableRows();
    ASSERT_FALSE(rows.empty());
    int pictures = 0;
    for (const std::string& id : rows) {
        std::vector<int> pages = ReachablePages(id);
        // A dialog without pages is drawn once, as its one page (-1: no
        // page to turn to).
        if (pages.empty())
            pages.push_back(-1);
        std::vector<QImage> drawn;
        for (const int page : pages) {
            SCOPED_TRACE("command " + id + " page " + std::to_string(page));
            const std::string file = dir.Path() + "/" + id + "-" + std::to_string(page) + ".png";
            const auto r = Kalhost({"open", id, "--actions", "-", "--gui", "--screenshot", file},
                                   page < 0 ? std::string() : "page " + std::to_string(page) + "\n");
            EXPECT_EQ(r.status, 0) << r.err;
            EXPECT_EQ(r.err, "");
            const QImage image(QString::fromStdString(file));
            EXPECT_EQ(Blankness(image), "");
            for (const QImage& other : drawn)
                EXPECT_NE(image, other) << "looks like an earlier page";
            drawn.push_back(image);
            ++pictures;
        }
    }
    EXPECT_GE(pictures, 16);
}

TEST(Gallery, TheGalleryScriptsRunCleanly)
{
    TempDir dir;
    const auto scripts = GalleryScripts();
    ASSERT_GE(scripts.size(), 16u);
    for (const GalleryScript& script : scripts) {
        SCOPED_TRACE(script.name);
        ASSERT_FALSE(script.id.empty()) << "no open line";
        std::vector<std::string> args = script.options;
        const std::string file = dir.Path() + "/" + script.name + ".png";
        args.insert(args.end(), {"open", script.id, "--actions", "-", "--gui", "--screenshot", file});
        const auto r = Kalhost(args, script.actions);
        EXPECT_EQ(r.status, 0) << r.err;
        EXPECT_EQ(r.err, "");
        EXPECT_EQ(Blankness(QImage(QString::fromStdString(file))), "");
    }
}
