#include "SessionManager.h"

#include <QSocketNotifier>
#include <QtTest>

#include <cstdlib>

// Their macros bite Qt's names: last.
#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>
#include <X11/Xlib.h>

struct SessionManager::Talk
{
    IceListenObj* listeners = nullptr;
    int listenerCount = 0;
    SmsConn client = nullptr;
    IceConn road = nullptr;
    std::unique_ptr<QSocketNotifier> doorbell, letters;
    int saved = 0; // times that the program has said so

    void acceptProgram();
};

namespace {

SessionManager::Talk& talkOf(SmPointer data)
{
    return *static_cast<SessionManager::Talk*>(data);
}

Bool letAnyoneIn(char*)
{
    return True;
}

Status registerClient(SmsConn client, SmPointer, char* previous)
{
    std::free(previous);
    char* name = SmsGenerateClientID(client);
    SmsRegisterClientReply(client, name);
    std::free(name);
    SmsSaveYourself(client, SmSaveLocal, False, SmInteractStyleNone, False);
    return True;
}

// The library's own ends this process.
void letGo(IceConn) {}

void interactRequest(SmsConn client, SmPointer, int)
{
    SmsInteract(client);
}

void interactDone(SmsConn, SmPointer, Bool) {}
void saveRequest(SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}

void phase2Request(SmsConn client, SmPointer)
{
    SmsSaveYourselfPhase2(client);
}

void saveDone(SmsConn client, SmPointer data, Bool)
{
    ++talkOf(data).saved;
    SmsSaveComplete(client);
}

void closeConnection(SmsConn client, SmPointer data, int count, char** reasons)
{
    SmFreeReasons(count, reasons);
    talkOf(data).letters.reset();
    talkOf(data).client = nullptr;
    SmsCleanUp(client);
}

void setProperties(SmsConn, SmPointer, int count, SmProp** properties)
{
    for (int i = 0; i < count; ++i)
        SmFreeProperty(properties[i]);
    std::free(properties);
}

void deleteProperties(SmsConn, SmPointer, int count, char** names)
{
    for (int i = 0; i < count; ++i)
        std::free(names[i]);
    std::free(names);
}

void getProperties(SmsConn client, SmPointer)
{
    SmsReturnProperties(client, 0, nullptr);
}

Status newClient(SmsConn client, SmPointer data, unsigned long* mask, SmsCallbacks* callbacks, char**)
{
    talkOf(data).client = client;
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
            SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
            SmsGetPropertiesProcMask;
    *callbacks = {{registerClient, data},  {interactRequest, data}, {interactDone, data},
                  {saveRequest, data},     {phase2Request, data},   {saveDone, data},
                  {closeConnection, data}, {setProperties, data},   {deleteProperties, data},
                  {getProperties, data}};
    return True;
}

} // namespace

SessionManager::SessionManager() : talk(std::make_unique<Talk>()) {}

SessionManager::~SessionManager()
{
    talk->letters.reset();
    talk->doorbell.reset();
    if (talk->listeners)
        IceFreeListenObjs(talk->listenerCount, talk->listeners);
    qunsetenv("SESSION_MANAGER");
}

bool SessionManager::start()
{
    char error[256] = {};
    if (!SmsInitialize("test", "1", newClient, talk.get(), letAnyoneIn, sizeof error, error) ||
        !IceListenForConnections(&talk->listenerCount, &talk->listeners, sizeof error, error)) {
        qWarning("%s", error);
        return false;
    }
    IceSetIOErrorHandler(letGo);
    for (int i = 0; i < talk->listenerCount; ++i)
        IceSetHostBasedAuthProc(talk->listeners[i], letAnyoneIn);
    IceListenObj local = talk->listeners[talk->listenerCount - 1];
    for (int i = 0; i < talk->listenerCount; ++i) {
        char* name = IceGetListenConnectionString(talk->listeners[i]);
        if (QByteArray(name).startsWith("unix/"))
            local = talk->listeners[i];
        std::free(name);
    }
    char* name = IceGetListenConnectionString(local);
    qputenv("SESSION_MANAGER", name);
    std::free(name);
    talk->doorbell =
        std::make_unique<QSocketNotifier>(IceGetListenConnectionNumber(local), QSocketNotifier::Read);
    connect(talk->doorbell.get(), &QSocketNotifier::activated, this, [this, local] {
        IceAcceptStatus status = IceAcceptFailure;
        talk->road = IceAcceptConnection(local, &status);
        if (status == IceAcceptSuccess)
            talk->acceptProgram();
    });
    return true;
}

void SessionManager::Talk::acceptProgram()
{
    letters = std::make_unique<QSocketNotifier>(IceConnectionNumber(road), QSocketNotifier::Read);
    QObject::connect(letters.get(), &QSocketNotifier::activated, letters.get(), [this] {
        if (IceProcessMessages(road, nullptr, nullptr) == IceProcessMessagesIOError)
            letters.reset();
    });
}

bool SessionManager::waitForClient()
{
    return QTest::qWaitFor([this] { return talk->saved >= 1; }, 10000);
}

bool SessionManager::askToSave(bool mayAsk)
{
    const int before = talk->saved;
    SmsSaveYourself(talk->client, SmSaveBoth, True, mayAsk ? SmInteractStyleAny : SmInteractStyleNone, False);
    return QTest::qWaitFor([&] { return talk->saved > before; }, 10000);
}

void SessionManager::stay()
{
    SmsShutdownCancelled(talk->client);
    IceFlush(talk->road);
}

void SessionManager::end()
{
    SmsDie(talk->client);
    IceFlush(talk->road);
}

bool closeWindowByItsButton(const QByteArray& title)
{
    Display* display = XOpenDisplay(nullptr);
    Window root = 0, parent = 0, *children = nullptr;
    unsigned count = 0;
    bool sent = false;
    XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count);
    for (unsigned i = 0; i < count; ++i) {
        char* name = nullptr;
        if (XFetchName(display, children[i], &name) && title == name) {
            XEvent event = {};
            event.xclient.type = ClientMessage;
            event.xclient.window = children[i];
            event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
            event.xclient.format = 32;
            event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
            sent = XSendEvent(display, children[i], False, NoEventMask, &event) != 0;
        }
        XFree(name);
    }
    XFree(children);
    XCloseDisplay(display);
    return sent;
}
