"""The databases that a living switch can have, each started and killed as a whole (living.py)."""
import json, os, subprocess, urllib.request


class Redis:
    """One server, whose state is on the disk with each write."""

    killed, revived = 'the database is killed: the chips stay as they are', 'the database is back'

    def __init__(self, live):
        self.live, self.socket = live, live.path('redis.sock')
        self.url = 'redis+unix://' + self.socket

    def begin(self):
        self.live.begin('redis', 'redis-server', '--port', '0', '--unixsocket', self.socket, '--dir', self.live.folder, '--save', '',
                        '--appendonly', 'yes', '--appendfsync', 'always')
        self.live.wait(lambda: subprocess.run(['redis-cli', '-s', self.socket, 'ping'], capture_output=True).stdout == b'PONG\n',
                       'the database')

    def kill(self):
        self.live.kill('redis')

    def revive(self):
        self.begin()


class Etcd:
    """A cluster of three on the loopback; its leader is killed."""

    killed, revived = "the database's leader is killed: the two others go on", 'it is back, and catches up'

    def __init__(self, live):
        number = os.getpid()  # no other process has this address
        self.live, self.host = live, f'127.{64 + (number >> 16 & 63)}.{number >> 8 & 255}.{number & 255}'
        self.members = {f'etcd{n}': 2379 + 2 * n for n in range(3)}
        self.url = 'etcd://' + ','.join(f'{self.host}:{port}' for port in self.members.values())

    def start(self, name):
        client, peer = (f'http://{self.host}:{self.members[name] + more}' for more in (0, 1))
        cluster = ','.join(f'{each}=http://{self.host}:{port + 1}' for each, port in self.members.items())
        self.live.begin(name, 'etcd', '--name', name, '--data-dir', self.live.path(name), '--listen-client-urls', client,
                        '--advertise-client-urls', client, '--listen-peer-urls', peer, '--initial-advertise-peer-urls', peer,
                        '--initial-cluster', cluster)

    def ask(self, name, what):
        try:
            with urllib.request.urlopen(f'http://{self.host}:{self.members[name]}/v3/{what}', b'{}', 1) as answer:
                return json.load(answer)
        except (OSError, ValueError):
            return {}

    def leader(self):
        for name in self.members:
            status = self.ask(name, 'maintenance/status')
            if status and status.get('leader') == status['header']['member_id']:
                return name
        return None

    def begin(self):
        for name in self.members:
            self.start(name)
        self.live.wait(self.leader, 'the database')

    def kill(self):
        self.gone = self.leader() or 'etcd0'
        self.live.kill(self.gone)

    def revive(self):
        self.start(self.gone)
