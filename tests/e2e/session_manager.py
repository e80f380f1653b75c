"""A desktop's session manager. Prints its address, and then a line for everything that a program
tells it. A line on its standard input is what it is to do: "log out", as the player wishes, or "end",
which asks no program to save before."""

import ctypes
import select
import sys

ICE = ctypes.CDLL("libICE.so.6")
SM = ctypes.CDLL("libSM.so.6")

ACCEPT = 1
SAVE_LOCAL, SAVE_BOTH = 1, 2
INTERACT_NEVER, INTERACT_ALWAYS = 0, 2
CONNECTION_LIVES = 0

Pointer, Int = ctypes.c_void_p, ctypes.c_int
Callback = ctypes.CFUNCTYPE(None, Pointer, Pointer, Int, Pointer)
Register = ctypes.CFUNCTYPE(Int, Pointer, Pointer, Pointer)
NewClient = ctypes.CFUNCTYPE(Int, Pointer, Pointer, ctypes.POINTER(ctypes.c_ulong),
                             ctypes.POINTER(Pointer), Pointer)
Admit = ctypes.CFUNCTYPE(Int, ctypes.c_char_p)
ConnectionLost = ctypes.CFUNCTYPE(None, Pointer)


def declare(function, result, *arguments):
    function.restype, function.argtypes = result, arguments
    return function


save_yourself = declare(SM.SmsSaveYourself, None, Pointer, Int, Int, Int, Int)
save_complete = declare(SM.SmsSaveComplete, None, Pointer)
die = declare(SM.SmsDie, None, Pointer)
interact = declare(SM.SmsInteract, None, Pointer)
new_id = declare(SM.SmsGenerateClientID, Pointer, Pointer)
register_reply = declare(SM.SmsRegisterClientReply, Int, Pointer, Pointer)
initialize = declare(SM.SmsInitialize, Int, ctypes.c_char_p, ctypes.c_char_p, NewClient, Pointer,
                     Admit, Int, ctypes.c_char_p)
listen = declare(ICE.IceListenForConnections, Int, ctypes.POINTER(Int), ctypes.POINTER(Pointer),
                 Int, ctypes.c_char_p)
listener_number = declare(ICE.IceGetListenConnectionNumber, Int, Pointer)
admit_hosts = declare(ICE.IceSetHostBasedAuthProc, None, Pointer, Admit)
addresses = declare(ICE.IceComposeNetworkIdList, ctypes.c_char_p, Int, Pointer)
accept = declare(ICE.IceAcceptConnection, Pointer, Pointer, ctypes.POINTER(Int))
connection_number = declare(ICE.IceConnectionNumber, Int, Pointer)
process_messages = declare(ICE.IceProcessMessages, Int, Pointer, Pointer, Pointer)
on_connection_lost = declare(ICE.IceSetIOErrorHandler, Pointer, ConnectionLost)


def say(words):
    print(words, flush=True)


clients = []


def register(client, *_):
    register_reply(client, new_id(client))
    clients.append(client)
    save_yourself(client, SAVE_LOCAL, False, INTERACT_NEVER, False)
    return ACCEPT


def interact_request(client, *_):
    say("wants to ask the player")
    interact(client)


def save_yourself_done(client, *_):
    say("has saved")
    save_complete(client)


def ignore(*_):
    pass


# As the library has them in a row, each followed by a pointer of no use here.
CALLBACKS = [Register(register)] + [Callback(function) for function in (
    interact_request, ignore, ignore, ignore, save_yourself_done, ignore, ignore, ignore, ignore)]


@NewClient
def new_client(_, __, mask, callbacks, ___):
    mask[0] = (1 << len(CALLBACKS)) - 1
    for place, callback in enumerate(CALLBACKS):
        callbacks[2 * place] = ctypes.cast(callback, Pointer)
    return ACCEPT


@Admit
def admit(_):
    return ACCEPT


@ConnectionLost
def connection_lost(_):
    pass


def log_out(client):
    save_yourself(client, SAVE_BOTH, True, INTERACT_ALWAYS, False)


ORDERS = {"log out": log_out, "end": die}


def serve():
    trouble = ctypes.create_string_buffer(200)
    count, listeners = Int(), Pointer()
    on_connection_lost(connection_lost)
    if not initialize(b"tests", b"1", new_client, None, admit, len(trouble), trouble) or (
            not listen(count, listeners, len(trouble), trouble)):
        sys.exit(trouble.value.decode())
    listening = {}
    for listener in ctypes.cast(listeners, ctypes.POINTER(Pointer))[:count.value]:
        admit_hosts(listener, admit)
        listening[listener_number(listener)] = listener
    say(addresses(count.value, listeners).decode())

    connections = {}
    while True:
        for ready in select.select([sys.stdin, *listening, *connections], [], [])[0]:
            if ready is sys.stdin:
                order = sys.stdin.readline().strip()
                if not order:
                    return
                for client in clients:
                    ORDERS[order](client)
            elif ready in listening:
                connection = accept(listening[ready], Int())
                connections[connection_number(connection)] = connection
            elif process_messages(connections[ready], None, None) != CONNECTION_LIVES:
                del connections[ready]
                say("is gone")


if __name__ == "__main__":
    serve()
