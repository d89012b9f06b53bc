/** Why the process did not do what it was asked for. */
export class Refusal extends Error {
  constructor(status, body) {
    super(body.error ?? "");
    this.status = status;
    this.isGone = status === 0 || status === 404; // it has ended, or another one has its port
    this.revision = body.revision;
  }

  /** What was asked for was about a site that has changed since. */
  isStaleAfter(revision) {
    return this.status === 409 && this.revision !== revision;
  }
}

/** Asks the process that holds the site. Whatever is not granted is thrown as a Refusal. */
export class Api {
  get(path) {
    return Api.#ask(path, { method: "GET" });
  }

  post(path, body = {}) {
    return Api.#ask(path, {
      method: "POST", headers: { "Content-Type": "application/json" }, body: JSON.stringify(body),
    });
  }

  static async #ask(path, request) {
    let response;
    let body;
    try {
      response = await fetch(path, request);
      body = await response.json();
    } catch (error) {
      throw new Refusal(response && !response.ok ? response.status : 0, {});
    }
    if (!response.ok) throw new Refusal(response.status, body);
    return body;
  }
}
