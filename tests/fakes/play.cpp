#include "fakes/play.h"

#include <unistd.h>

#include <cstring>
#include <fstream>
#include <new>
#include <sstream>

#include "data/best_times.h"
#include "data/font.h"
#include "sim/camera.h"
#include "sim/simulation.h"
#include "sim/view_frame.h"

namespace fs = std::filesystem;

namespace {

// As at program start: memory of zeros, then the constructor.
template <class Object>
void renew(Object& object) {
    object.~Object();
    std::memset(static_cast<void*>(&object), 0, sizeof object);
    new (&object) Object;
}

} // namespace

void startAfresh() {
    machine = MachineRecord{};
    Game = GameRecord{};
    renew(viewFrame);
    renew(level);
    renew(marble);
    renew(font);
    bestTimes = {};
    cameraPosition = steeringForce = Vector3(0, 0, 0);
    cameraAngleX = cameraAngleY = cameraAngleZ = 0;
}

Story::Story() : before_(fs::current_path()) {
    folder_ = fs::temp_directory_path() / ("glorbix-story-" + std::to_string(getpid()));
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    fs::current_path(folder_);
    startAfresh();
}

Story::~Story() {
    EXPECT_EQ(machine.openFiles, 0);
    EXPECT_EQ(machine.systemTexts, 0);
    fs::current_path(before_);
    fs::remove_all(folder_);
}

void expectVector(const Vector3& v, double x, double y, double z, double tolerance) {
    EXPECT_NEAR(v.x, x, tolerance);
    EXPECT_NEAR(v.y, y, tolerance);
    EXPECT_NEAR(v.z, z, tolerance);
}

void writeFile(const std::string& name, const std::string& content) {
    const fs::path path = name;
    if (path.has_parent_path()) fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

std::string readFile(const std::string& name) {
    std::ostringstream content;
    content << std::ifstream(name, std::ios::binary).rdbuf();
    return content.str();
}

void writeBitmap(const std::string& name, int width, int height, unsigned colour) {
    std::string file(54, '\0');
    file[18] = static_cast<char>(width & 255);
    file[19] = static_cast<char>(width >> 8);
    file[22] = static_cast<char>(height & 255);
    file[23] = static_cast<char>(height >> 8);
    file[28] = 24;
    for (int i = 0; i < width * height; ++i) {
        file += {static_cast<char>(colour & 255), static_cast<char>(colour >> 8 & 255),
                 static_cast<char>(colour >> 16)};
    }
    writeFile(name, file);
}

void writeMipChain(const std::string& base, int size, int levels) {
    for (int k = 0; k < levels; ++k) {
        writeBitmap(base + "_" + std::to_string(k) + ".bmp", size >> k, size >> k,
                    static_cast<unsigned>(k + 1));
    }
}

std::string levelText(const std::vector<Hole>& holes, const std::string& head) {
    std::ostringstream text;
    text << head << "\ntexturefile= ground\nholecount= " << holes.size() << "\n.data\n";
    for (const Hole& hole : holes) {
        text << hole.x << ' ' << hole.y << ' ' << hole.width << ' ' << hole.depth << '\n';
    }
    text << ".end";
    return text.str();
}

namespace {

// Every glyph's left edge is its code, so that the quads that are drawn tell the text.
std::string testFontMetrics() {
    std::ostringstream text;
    text << "33 126";
    for (char c = '!'; c <= '~'; ++c) {
        text << '\n' << c << ' ' << +c << " 0 " << c + testGlyphWidth(c) << ' ' << testGlyphHeight;
    }
    return text.str();
}

} // namespace

void writeGameFiles(const std::vector<std::string>& levels) {
    std::string list = std::to_string(levels.size());
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const std::string name = "maps/" + std::to_string(i + 1) + ".map";
        writeFile(name, levels[i]);
        list += "\n" + name;
    }
    writeFile("maps/maplist.dat", list);
    writeMipChain("ground", groundTextureSize, groundTextureLevels);
    writeMipChain("graphics/font/font", 256, 9);
    writeFile("graphics/font/font.dat", testFontMetrics());
    std::string bestTimesText;
    for (int i = 0; i < 10; ++i) {
        bestTimesText +=
            std::to_string(100 + 10 * i) + " " + std::string(3, static_cast<char>('a' + i)) + " ";
    }
    writeFile("highScore.dat", bestTimesText);
    writeBitmap("graphics/title.bmp", 640, 480, 0x111111);
    writeBitmap("graphics/back.bmp", 640, 480, 0x222222);
}

bool startUp() {
    Game.window = theWindow;
    send(WM_CREATE);
    return !machine.quitPosted;
}

int runProgram(const std::function<void()>& whenIdle) {
    int turns = 0;
    machine.whenIdle = [&] {
        whenIdle();
        if (++turns < 5000) return;
        ADD_FAILURE() << "the program does not end";
        PostQuitMessage(-1);
    };
    return WinMain(nullptr, nullptr, nullptr, SW_SHOW);
}

void queueMessage(UINT message, int wParam) {
    machine.queue.push_back(MSG{theWindow, message, static_cast<WPARAM>(wParam), 0, 0, {0, 0}});
}

void handleMessages() {
    while (!machine.queue.empty()) {
        MSG message;
        PeekMessageA(&message, theWindow, 0, 0, PM_REMOVE);
        DispatchMessageA(&message);
    }
}

LRESULT send(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = GameWindowProc(theWindow, message, wParam, lParam);
    handleMessages();
    return result;
}

void tick(double seconds) {
    passTime(seconds);
    machine.drawn.clear();
    send(WM_GAME_TICK);
}

void ticks(int n, double seconds) {
    for (int i = 0; i < n; ++i)
        tick(seconds);
}

void startGame() {
    if (!Game.menuOpen) pressKey(VK_ESCAPE);
    pressKey(VK_RETURN);
}

void playLevel(const std::vector<Hole>& holes) {
    writeGameFiles({levelText(holes)});
    ASSERT_TRUE(startUp());
    startGame();
    Game.clock = levelTime;
}
