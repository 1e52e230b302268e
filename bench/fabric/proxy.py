"""Stands between agents and their database, and counts the bytes of both directions.

    with Proxy(server, folder) as proxy:
        proxy.url                           # for the agents
        proxy.read, proxy.written           # by the agents, so far
"""
import asyncio, os, threading


class Proxy:
    def __init__(self, server, folder):
        self.server, self.path = server, os.path.join(folder, 'proxy.sock')
        self.read = self.written = 0

    def __enter__(self):
        self.loop, ready = asyncio.new_event_loop(), threading.Event()

        async def listens():
            if isinstance(self.server.address, str):
                await asyncio.start_unix_server(self.serves, self.path)
                self.url = self.server.url_at(self.path)
            else:
                listening = await asyncio.start_server(self.serves, '127.0.0.1', 0)
                self.url = self.server.url_at(listening.sockets[0].getsockname())
            ready.set()
        self.loop.create_task(listens())
        threading.Thread(target=self.loop.run_forever, daemon=True).start()
        ready.wait()
        return self

    def __exit__(self, *_):
        self.loop.call_soon_threadsafe(self.loop.stop)

    async def serves(self, reader, writer):
        there = self.server.address
        others = await (asyncio.open_unix_connection(there) if isinstance(there, str) else asyncio.open_connection(*there))
        await asyncio.gather(self.carries(reader, others[1], 'written'), self.carries(others[0], writer, 'read'))

    async def carries(self, source, to, count):
        try:
            while part := await source.read(1 << 16):
                setattr(self, count, getattr(self, count) + len(part))
                to.write(part)
                await to.drain()
        except OSError:
            pass  # one side has gone: the other one is told so
        to.close()
