// Starts programs and prints how long each takes until its first window of normal size is on the
// screen, and until something is drawn in it. The splash is too narrow to count.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>
#include <xcb/damage.h>

namespace {

constexpr int NarrowestWindow = 500;
constexpr int WaitLimit = 30000; // ms

using Clock = std::chrono::steady_clock;

struct Times
{
    std::vector<double> mapped; // ms
    std::vector<double> drawn;
};

double Since(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

[[noreturn]] void Fail(const char *message)
{
    std::fprintf(stderr, "brenix-window-timer: %s\n", message);
    std::exit(1);
}

struct Free
{
    void operator()(void *memory) const { std::free(memory); }
};
template <typename T> using Owned = std::unique_ptr<T, Free>;

class Screen
{
public:
    Screen()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(m_connection))
            Fail("no display");
        m_damage = xcb_get_extension_data(m_connection, &xcb_damage_id);
        if (!m_damage || !m_damage->present)
            Fail("the display does not report damage");
        Owned<xcb_damage_query_version_reply_t>(xcb_damage_query_version_reply(
            m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_connection);
    }
    ~Screen() { xcb_disconnect(m_connection); }
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    void AwaitDrawnWindow(Clock::time_point start, Times &times)
    {
        xcb_window_t mapped = XCB_NONE;
        for (;;) {
            const Owned<xcb_generic_event_t> event = NextEvent();
            const int type = event->response_type & 0x7F;
            if (type == XCB_CREATE_NOTIFY) {
                WatchDrawing(reinterpret_cast<const xcb_create_notify_event_t &>(*event).window);
            } else if (type == XCB_MAP_NOTIFY && mapped == XCB_NONE) {
                const auto &map = reinterpret_cast<const xcb_map_notify_event_t &>(*event);
                if (!IsNormal(map.window))
                    continue;
                mapped = map.window;
                times.mapped.push_back(Since(start));
            } else if (type == m_damage->first_event + XCB_DAMAGE_NOTIFY) {
                const auto &damage = reinterpret_cast<const xcb_damage_notify_event_t &>(*event);
                if (damage.drawable != mapped)
                    continue;
                times.drawn.push_back(Since(start));
                return;
            }
        }
    }

    // What the program before left in the queue.
    void ForgetEvents()
    {
        Owned<xcb_get_input_focus_reply_t>(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
        while (Owned<xcb_generic_event_t>(xcb_poll_for_event(m_connection))) { }
    }

private:
    Owned<xcb_generic_event_t> NextEvent()
    {
        for (;;) {
            if (Owned<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)})
                return event;
            pollfd wait{xcb_get_file_descriptor(m_connection), POLLIN, 0};
            if (poll(&wait, 1, WaitLimit) <= 0 || xcb_connection_has_error(m_connection))
                Fail("no window of normal size was drawn");
        }
    }

    // To be asked for before the window is mapped: a mapped one counts as drawn at once.
    void WatchDrawing(xcb_window_t window)
    {
        xcb_damage_create(m_connection,
                          xcb_generate_id(m_connection),
                          window,
                          XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
        xcb_flush(m_connection);
    }

    bool IsNormal(xcb_window_t window)
    {
        const Owned<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
        return geometry && geometry->width >= NarrowestWindow;
    }

    xcb_connection_t *m_connection;
    const xcb_query_extension_reply_t *m_damage;
};

void TimeStart(Screen &screen, char *program, Times &times)
{
    screen.ForgetEvents();
    const Clock::time_point start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execl(program, program, nullptr);
        _exit(127);
    }
    screen.AwaitDrawnWindow(start, times);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
}

} // namespace

int main(int argc, char **argv)
{
    const int runs = argc > 2 ? std::atoi(argv[1]) : 0;
    if (runs < 1) {
        std::fputs("usage: brenix-window-timer RUNS PROGRAM...\n"
                   "Prints the median of the milliseconds until PROGRAM's window is mapped, and "
                   "until it is drawn in.\n",
                   stderr);
        return 2;
    }
    Screen screen;
    std::vector<Times> times(std::size_t(argc - 2));
    // In turn, so that a busy machine slows down all alike; the first run warms the caches.
    for (int run = -1; run < runs; ++run) {
        for (std::size_t i = 0; i < times.size(); ++i) {
            Times warmUp;
            TimeStart(screen, argv[i + 2], run < 0 ? warmUp : times[i]);
        }
    }
    for (std::size_t i = 0; i < times.size(); ++i)
        std::printf("%s %.1f %.1f\n", argv[i + 2], Median(times[i].mapped), Median(times[i].drawn));
    return 0;
}
