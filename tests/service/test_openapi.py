"""docs/openapi.yaml against real replies: the recorded requests of the demonstration, and refusals of each kind.

    test_openapi.py PROJECT SERVICE DATABASE
"""
import copy
import json
import pathlib
import subprocess
import sys
import tempfile
import urllib.error
import urllib.request

import jsonschema
import yaml

TOKEN = "sesame"
CONTENTS = {"Bands": "Columns", "filters": "Filters", "childView": "Children"}


class Api:
    def __init__(self, path):
        self.document = yaml.safe_load(path.read_text(encoding="utf-8"))

    def check(self, schema, value):
        root = {"$ref": f"#/components/schemas/{schema}", "components": self.document["components"]}
        jsonschema.Draft202012Validator(root).validate(value)

    def operation(self, path):
        return self.document["paths"][path]["post"]

    def reply_schema(self, path, status):
        reply = self.operation(path)["responses"][str(status)]
        if "$ref" in reply:
            reply = self.document["components"]["responses"][reply["$ref"].rsplit("/", 1)[1]]
        return reply["content"]["application/json"]["schema"]["$ref"].rsplit("/", 1)[1]

    def request_schema(self, path):
        return self.operation(path)["requestBody"]["content"]["application/json"]["schema"]["$ref"].rsplit("/", 1)[1]

    def check_texts(self, data):
        """JSON that stands as text within a view's configuration."""
        for entry in data.get("View_Config", []):
            if entry["prop_name"] in CONTENTS and entry["prop_typ"] == "EXTEND":
                self.check(CONTENTS[entry["prop_name"]], json.loads(entry["ext_prop_val"]))
        for field in data.get("Object_View_Config", []):
            self.check("Column", json.loads(field["ots_cfg"]))


def ask(port, path, body, token=TOKEN):
    request = urllib.request.Request(f"http://127.0.0.1:{port}{path}", data=body.encode(), headers={"kvt-token": token})
    try:
        with urllib.request.urlopen(request) as reply:
            return reply.status, json.load(reply)
    except urllib.error.HTTPError as refusal:
        return refusal.code, json.load(refusal)


def refusals():
    """Path, body, token and status of requests that are refused."""
    view = {"obj_vw_id": 260, "flag": 1}
    yield "/bas/subject/data", json.dumps({**view, "filter": "(NOPE = 1)"}), TOKEN, 400
    yield "/bas/subject/data", json.dumps({**view, "order": {"SYMBOL": 3}}), TOKEN, 400
    yield "/bas/ds/data", '{"objName": "no such list"}', TOKEN, 400
    yield "/bas/ds/data", "[", TOKEN, 400
    yield "/bas/ds/data", '{"objId": 43}', "guess", 401
    yield "/bas/subject/data", json.dumps(view) + " " * 20000, TOKEN, 413


def check_replies(api, port, recorded):
    seen = set()
    for line in recorded.read_text(encoding="utf-8").splitlines():
        request = json.loads(line)
        path, body = request["path"], request["body"]
        api.check(api.request_schema(path), body)
        status, reply = ask(port, path, json.dumps(body))
        api.check(api.reply_schema(path, status), reply)
        assert status == 200, (request, reply)
        if isinstance(reply["data"], dict):
            api.check_texts(reply["data"])
            seen.update(reply["data"])
        else:
            seen.update(reply["data"][0])
    missing = {"View_Config", "Data", "Summary", "NODE_CODE", "SECT_ID", "FILTER1"} - seen
    assert not missing, f"nothing recorded has {missing}"
    for path, body, token, status in refusals():
        found, reply = ask(port, path, body, token)
        assert found == status and reply["state"] == -status, (body[:80], found, reply)
        api.check(api.reply_schema(path, status), reply)


def check_strictness(api, port):
    """A reply with one fault is told from a good one."""
    _, reply = ask(port, "/bas/subject/data", '{"obj_vw_id": 260, "flag": 2, "page": 1, "size": 2}')
    api.check("ViewReply", reply)
    faults = [lambda r: r.pop("msg"), lambda r: r.update(state=0), lambda r: r["data"].pop("Summary"),
              lambda r: r["data"]["Data"][0].update(SYMBOL={}), lambda r: r["data"]["Summary"].reverse(),
              lambda r: r["data"]["View_Config"][0].update(prop_val=3), lambda r: r["data"].update(More=[])]
    for number, spoil in enumerate(faults):
        spoilt = copy.deepcopy(reply)
        spoil(spoilt)
        try:
            api.check("ViewReply", spoilt)
        except jsonschema.ValidationError:
            continue
        raise AssertionError(f"fault {number} is not seen")


def main(project, service, database):
    project = pathlib.Path(project)
    api = Api(project / "docs" / "openapi.yaml")
    with tempfile.TemporaryDirectory() as folder:
        tokens = pathlib.Path(folder) / "tokens"
        tokens.write_text(f"{TOKEN} tester *\n", encoding="utf-8")
        process = subprocess.Popen(
            [service, "--db", database, "--views", str(project / "demo" / "views"), "--port", "0", "--token-file",
             str(tokens), "--max-body", "10000", "--exit-with-parent"], stdout=subprocess.PIPE, text=True)
        try:
            port = int(process.stdout.readline().rsplit(":", 1)[1])
            check_replies(api, port, project / "bench" / "load" / "requests.jsonl")
            check_strictness(api, port)
        finally:
            process.terminate()
            process.wait()


main(*sys.argv[1:])
