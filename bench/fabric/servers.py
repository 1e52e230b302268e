"""The databases that a fabric is measured over: a real server each, in a temporary folder, at a place that the machine gives.

    with Etcd(folder) as server:
        place = server.write(cell, path, attribute, value)      # one transaction of one change
        server.agents([cell])                                   # {(cell, slice): Agent(phase, applied, reports)}
        server.counts()                                         # what it has done since it began
"""
import base64, collections, http.client, json, os, re, socket, time

from processes import begin, processor_time

Agent = collections.namedtuple('Agent', 'phase applied reports')


class Server:
    def __init__(self, folder):
        self.folder, self.log, self.epochs = folder, os.path.join(folder, self.name + '.log'), {}

    def __enter__(self):
        self.process = self.start()
        end = time.monotonic() + 30
        while not self.answers():
            if time.monotonic() > end or self.process.poll() is not None:
                raise SystemExit(f'{self.name} does not start: ' + open(self.log).read()[-400:])
            time.sleep(0.02)
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()

    def processor_time(self):
        return processor_time(self.process)


class Etcd(Server):
    """One member, that waits for its disk as it is meant to."""
    name, request = 'etcd', rb'POST /v3/'  # as it begins on the wire

    def start(self):
        ports = []
        with socket.socket() as one, socket.socket() as two:
            for each in (one, two):
                each.bind(('127.0.0.1', 0))
                ports.append(each.getsockname()[1])
        self.address = ('127.0.0.1', ports[0])
        self.url, self.connection = self.url_at(self.address), http.client.HTTPConnection(*self.address, timeout=60)
        mine, peer = ('http://127.0.0.1:%d' % port for port in ports)
        return begin(self.log, 'etcd', '--name', 'm', '--data-dir', os.path.join(self.folder, 'etcd'), '--listen-client-urls', mine,
                     '--advertise-client-urls', mine, '--listen-peer-urls', peer, '--initial-advertise-peer-urls', peer,
                     '--initial-cluster', 'm=' + peer, '--quota-backend-bytes', str(8 << 30))

    @staticmethod
    def url_at(address):
        return 'etcd://%s:%d' % address

    def ask(self, what, question):
        self.connection.request('POST', '/v3/' + what, json.dumps(question))
        answer = json.load(self.connection.getresponse())
        if 'error' in answer:
            raise SystemExit(f'etcd: {what}: {answer["error"]}')
        return answer

    def answers(self):
        try:
            return bool(self.ask('kv/range', {'key': self.text('x')}))
        except (OSError, ValueError, http.client.HTTPException):
            self.connection.close()
            return False

    @staticmethod
    def text(of):
        return base64.b64encode(of.encode()).decode()

    def ranges(self, *ranges):
        """Of each its keys, values and how often each was written; all in one question."""
        def decoded(text):
            return base64.b64decode(text).decode()
        answer = self.ask('kv/txn', {'success': [{'requestRange': {'key': self.text(key), 'range_end': self.text(end), 'limit': limit}}
                                                 for key, end, limit in ranges]})
        return [[(decoded(each['key']), decoded(each.get('value', '')), int(each['version'])) for each in one['response_range'].get('kvs', [])]
                for one in answer['responses']]

    def write(self, cell, path, attribute, value):
        of_cell = f'l3sm:{cell}'
        if cell not in self.epochs:
            self.epochs[cell] = self.text(self.ranges((of_cell + '#epoch', of_cell + '#epoci', 1))[0][0][1])
        puts = {f'{of_cell}:{path}': json.dumps({attribute: value}), of_cell + '#writes': 'FabricBench'}
        return int(self.ask('kv/txn', {
            'compare': [{'key': self.text(of_cell + '#epoch'), 'target': 'VALUE', 'result': 'EQUAL', 'value': self.epochs[cell]}],
            'success': [{'requestPut': {'key': self.text(key), 'value': self.text(put)}} for key, put in puts.items()],
        })['header']['revision'])

    def agents(self, cells):
        all = {}
        for cell, those in zip(cells, self.ranges(*((f'l3sm:{cell}#agent:', f'l3sm:{cell}#agent;', 0) for cell in cells))):
            for key, value, version in those:
                fields = json.loads(value)
                all[cell, key.split(':')[-1]] = Agent(fields.get('phase'), int(fields.get('applied') or 0), version)
        return all

    def reports(self, cell):
        return sum(agent.reports for agent in self.agents([cell]).values())

    def read_all(self, cell):
        """As an agent does: in pages."""
        key = f'l3sm:{cell}:'
        while page := self.ranges((key, f'l3sm:{cell};', 1000))[0]:
            key = page[-1][0] + '\0'

    def counts(self):
        connection = http.client.HTTPConnection(*self.address, timeout=60)
        connection.request('GET', '/metrics')
        text = connection.getresponse().read().decode()
        connection.close()

        def total(name):
            return sum(float(value) for value in re.findall(r'^%s(?:{[^}]*})? (\S+)$' % name, text, re.M))
        return {'requests': total('grpc_server_msg_received_total'), 'answers': total('grpc_server_msg_sent_total'),
                'syncs': total('etcd_disk_wal_fsync_duration_seconds_count'),
                'sync seconds': total('etcd_disk_wal_fsync_duration_seconds_sum'),
                'stored': total('etcd_mvcc_db_total_size_in_use_in_bytes')}


class Redis(Server):
    name, request = 'redis', rb'\*\d+\r\n\$'

    def start(self):
        self.address = os.path.join(self.folder, 'redis.sock')
        self.url, self.connection, self.writes = self.url_at(self.address), None, 0
        return begin(self.log, 'redis-server', '--port', '0', '--unixsocket', self.address, '--dir', self.folder, '--save', '',
                     '--appendonly', 'yes', '--appendfsync', 'everysec')

    @staticmethod
    def url_at(address):
        return 'redis+unix://' + address

    def ask(self, *commands):
        def told(command):
            words = [str(word).encode() for word in command]
            return b'*%d\r\n' % len(words) + b''.join(b'$%d\r\n%s\r\n' % (len(word), word) for word in words)
        if not self.connection:
            line = socket.socket(socket.AF_UNIX)
            line.connect(self.address)
            self.connection = line.makefile('rwb')
        self.connection.write(b''.join(told(command) for command in commands))
        self.connection.flush()
        return [self.answer() for _ in commands]

    def answer(self):
        line = self.connection.readline()
        kind, rest = line[:1], line[1:-2].decode()
        if kind == b'$':
            return None if rest == '-1' else self.connection.read(int(rest) + 2)[:-2].decode()
        if kind == b'*':
            return [self.answer() for _ in range(int(rest))]
        if kind == b'-':
            raise SystemExit('redis: ' + rest)
        return int(rest) if kind == b':' else rest

    def answers(self):
        try:
            return self.ask(['PING']) == ['PONG']
        except OSError:
            return False

    def write(self, cell, path, attribute, value):
        of_cell = 'l3sm:{%s}' % cell
        if cell not in self.epochs:
            self.epochs[cell] = self.ask(['GET', of_cell + '#epoch'])[0]
        self.writes += 1
        change = json.dumps([{'set': {'path': path, 'attribute': attribute, 'value': value}}])
        done = self.ask(['MULTI'], ['HSET', f'{of_cell}:{path}', attribute, json.dumps(value)],
                        ['XADD', of_cell + '#log', '*', 'changes', change, 'epoch', self.epochs[cell]], ['EXEC'])
        return self.place(done[-1][1])

    @staticmethod
    def place(entry):
        milliseconds, number = (entry or '0-0').split('-')
        return int(milliseconds) << 20 | int(number)

    def agents(self, cells):
        all = {}
        for cell in cells:
            of_cell = 'l3sm:{%s}#agent' % cell
            for slice in self.ask(['SMEMBERS', of_cell + 's'])[0]:
                phase, applied = self.ask(['HMGET', f'{of_cell}:{slice}', 'phase', 'applied'])[0]
                all[cell, slice] = Agent(phase, self.place(applied), None)
        return all

    def reports(self, cell):
        """Each is a transaction; so is each write of ours."""
        return self.counts()['transactions'] - self.writes

    def read_all(self, cell):
        of_cell = 'l3sm:{%s}' % cell
        paths = self.ask(['SMEMBERS', of_cell + '#paths'])[0]
        for at in range(0, len(paths), 1000):
            self.ask(*(['HGETALL', f'{of_cell}:{path}'] for path in paths[at:at + 1000]))

    def counts(self):
        text = self.ask(['INFO', 'all'])[0]

        def total(name):
            return float(re.search(r'^%s:(\S+?)\r?$' % name, text, re.M).group(1))
        done = re.search(r'^cmdstat_exec:calls=(\d+)', text, re.M)
        return {'requests': total('total_commands_processed'), 'stored': total('used_memory'),
                'transactions': int(done.group(1)) if done else 0}
