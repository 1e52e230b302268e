"""Stands between agents and their database, and counts the bytes of both directions, and what is asked.

    with Proxy(server, folder) as proxy:
        proxy.url                           # for the agents
        proxy.read, proxy.written           # by the agents, so far
        proxy.requests
"""
import asyncio, os, re, threading


class Proxy:
    def __init__(self, server, folder):
        self.server, self.path = server, os.path.join(folder, 'proxy.sock')
        self.read = self.written = self.requests = 0

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
        self.thread = threading.Thread(target=self.loop.run_forever, daemon=True)
        self.thread.start()
        ready.wait()
        return self

    def __exit__(self, *_):
        self.loop.set_exception_handler(lambda *_: None)  # of connections that are cut in the middle

        async def ends():
            others = asyncio.all_tasks() - {asyncio.current_task()}
            for each in others:
                each.cancel()
            await asyncio.gather(*others, return_exceptions=True)
            self.loop.stop()
        asyncio.run_coroutine_threadsafe(ends(), self.loop)
        self.thread.join(5)

    async def serves(self, reader, writer):
        there = self.server.address
        others = await (asyncio.open_unix_connection(there) if isinstance(there, str) else asyncio.open_connection(*there))
        await asyncio.gather(self.carries(reader, others[1], 'written'), self.carries(others[0], writer, 'read'))

    async def carries(self, source, to, count):
        try:
            while part := await source.read(1 << 16):
                setattr(self, count, getattr(self, count) + len(part))
                if count == 'written':
                    self.requests += len(re.findall(self.server.request, part))
                to.write(part)
                await to.drain()
        except OSError:
            pass  # one side has gone: the other one is told so
        to.close()
