// Downloads with progress.

// Returns the bytes of a file. Calls `onProgress` with the bytes that have arrived so far.
export async function download(address, onProgress) {
    const response = await fetch(address);
    if (!response.ok) throw new Error(`${address}: ${response.status} ${response.statusText}`);
    const parts = [];
    let count = 0;
    const reader = response.body.getReader();
    for (;;) {
        const {done, value} = await reader.read();
        if (done) break;
        parts.push(value);
        count += value.length;
        onProgress(count);
    }
    return new Uint8Array(await new Blob(parts).arrayBuffer());
}
