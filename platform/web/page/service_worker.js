// Keeps the page for visits without a network. With a network every file comes from there, so a new
// version is seen at once.

const cacheName = 'glorbix';

self.addEventListener('install', (event) => event.waitUntil((async () => {
    const bundle = await (await fetch('bundle.json')).json();
    const cache = await caches.open(cacheName);
    await cache.addAll(['./', ...bundle.files]);
    await self.skipWaiting();
})()));

self.addEventListener('activate', (event) => event.waitUntil(self.clients.claim()));

async function answer(request) {
    const cache = await caches.open(cacheName);
    try {
        const response = await fetch(request, {cache: 'no-cache'});
        if (response.ok) await cache.put(request, response.clone());
        return response;
    } catch (error) {
        const kept = await cache.match(request, {ignoreSearch: true});
        if (kept !== undefined) return kept;
        throw error;
    }
}

self.addEventListener('fetch', (event) => {
    const {request} = event;
    const isOurs = request.url.startsWith(self.registration.scope);
    if (request.method === 'GET' && isOurs && !request.headers.has('range')) {
        event.respondWith(answer(request));
    }
});
